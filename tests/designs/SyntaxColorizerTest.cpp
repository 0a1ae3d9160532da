#include "designs/SyntaxColorizer.h"

#include "store/PropertyList.h"
#include "store/Settings.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>

using namespace vorn;

namespace {

QVariantMap component(const char* type, const char* name, QVariantMap extra = {})
{
    extra.insert("Type", type);
    extra.insert("Name", name);
    extra.insert("Color", QVariantList{0.5, 0.25, 0.0});
    return extra;
}

// A small language with every kind of component: comments first so that
// tags know them, strings, words, and comments again on top.
QVariantMap testLanguage()
{
    const QVariantMap comment = component("BlockComment", "Comment", {{"Start", "/*"}, {"End", "*/"}});
    return {{"Components",
             QVariantList{
                 comment,
                 component("Tag", "Tag", {{"Start", "<"}, {"End", ">"}, {"IgnoredComponent", "Comment"}}),
                 component("String", "String", {{"Start", "\""}, {"End", "\""}, {"EscapeChar", "\\"}}),
                 component("OneLineComment", "Line", {{"Start", "//"}}),
                 component("Keywords", "Keyword",
                           {{"Keywords", QVariantList{"if", "%TOTAL%"}},
                            {"Charset", "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ_"}}),
                 comment}}};
}

// The text with each character shown as the first letter of its mode (or
// '.' when uncoloured), which reads well in a table.
QString modeString(const SyntaxColorizer& c)
{
    QString out;
    for (int i = 0; i < c.text().size(); ++i) {
        const QString name = c.definition().modeName(c.modeAt(i));
        out += name.isEmpty() ? QChar('.') : name.front();
    }
    return out;
}

QString colored(const QString& text)
{
    SyntaxColorizer c(SyntaxDefinition::fromDictionary(testLanguage(), nullptr));
    c.setText(text);
    return modeString(c);
}

TEST(SyntaxColorizerTest, ColoursAsTheComponentsSay)
{
    const struct
    {
        const char* what;
        const char* text;
        const char* modes;
    } cases[] = {
        {"whole word only", "if iff xif if", "KK.........KK"},
        {"word followed by a word character stays plain", "if_x", "...."},
        {"a word with non-word characters is found by search", "a %TOTAL%.", "..KKKKKKK."},
        {"a searched word still needs its boundaries", "a%TOTAL%", "........"},
        {"escaped end marker does not end a string", R"(a "b\"c" d)", "..SSSSSS.."},
        {"unterminated string runs to the end", "x \"ab\ncd", "..SSSSSS"},
        {"tag inside a comment is not a tag", "/* <b> */<i>", "CCCCCCCCCTTT"},
        {"tag whose end lies in a comment is skipped", "<a /* > */", "...CCCCCCC"},
        {"later components overwrite earlier ones", "<a \"x\">", "TTTSSST"},
        {"unterminated comment runs to the end", "a /* b\nc", "..CCCCCC"},
        {"one-line comment stops at the line break", "a // b\nif", "..LLLL.KK"},
        {"comments win over everything before them", "/* \"if\" */", "CCCCCCCCCC"},
        {"empty text", "", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(colored(c.text).toStdString(), c.modes) << c.what;
}

class SyntaxDefinitionTest : public ::testing::Test
{
protected:
    QTemporaryDir dir;
    Settings settings{dir.filePath("s.plist")};
};

TEST_F(SyntaxDefinitionTest, ColoursComeFromTheSettingsOverTheDefinition)
{
    ASSERT_TRUE(SyntaxDefinition::registerColorDefaults(settings));
    settings.setValue("SyntaxColoring:Color:Keyword", QVariantList{1, 0, 0});
    const SyntaxDefinition d = SyntaxDefinition::fromDictionary(testLanguage(), &settings);
    EXPECT_EQ(d.modeColor(d.modeOf("Keyword")), (SyntaxColor{1, 0, 0, 1, true}));
    EXPECT_EQ(d.modeColor(d.modeOf("Line")), (SyntaxColor{0.5, 0.25, 0, 1, true}));
    EXPECT_FALSE(SyntaxDefinition::colorValue(QVariantList{1, "x", 0}).isValid());
    EXPECT_EQ(SyntaxDefinition::arrayWithColor({0.25, 0.5, 1, 0.5, true}),
              (QVariantList{0.25, 0.5, 1.0, 0.5}));
}

TEST_F(SyntaxDefinitionTest, KeywordsMissingFromTheDefinitionComeFromTheSettings)
{
    settings.setValue("SyntaxColoring:Keywords:Keyword", QVariantList{"else"});
    settings.setValue("SyntaxColoring:UserIdentifiers", QVariantList{"mine"});
    const QVariantMap language{
        {"Components", QVariantList{component("Keywords", "Keyword", {{"Charset", "elsmin"}}),
                                    component("UserIdentifiers", "User", {{"Charset", "elsmin"}})}}};
    SyntaxColorizer c(SyntaxDefinition::fromDictionary(language, &settings));
    c.setText("else mine");
    EXPECT_EQ(modeString(c), "KKKK.UUUU");
}

TEST_F(SyntaxDefinitionTest, TheOldFlatFormatColoursInItsOwnOrder)
{
    ASSERT_TRUE(SyntaxDefinition::registerColorDefaults(settings));
    const QVariantMap legacy{{"Identifiers", QVariantList{"body"}},
                             {"Identifiers:Charset", "abcdefghijklmnopqrstuvwxyz"},
                             {"Tag:Start", "<"},
                             {"Tag:End", ">"},
                             {"Tag:IgnoredStyle", "SyntaxColoring:MultiLineComment"},
                             {"String:EscapeChar", "\\"},
                             {"OneLineComment:Start", "//"},
                             {"BlockComment:Start", "/*"},
                             {"BlockComment:End", "*/"},
                             {"PreprocessorDirectives", QVariantList{"#include"}}};
    const SyntaxDefinition d = SyntaxDefinition::fromDictionary(legacy, &settings);
    ASSERT_TRUE(d.isLegacy());
    SyntaxColorizer c(d);
    c.setText("body \"s\" <b> #include x /* c */");
    // Identifier, DoubleQuotedString, Tag, Preprocessor, MultiLineComment.
    std::vector<QString> modes;
    for (const SyntaxRun& r : c.runs(0, int(c.text().size())))
        modes.push_back(d.modeName(r.mode));
    EXPECT_EQ(modes, (std::vector<QString>{"SyntaxColoring:Identifier", "SyntaxColoring:DoubleQuotedString",
                                           "SyntaxColoring:Tag", "SyntaxColoring:Preprocessor",
                                           "SyntaxColoring:MultiLineComment"}));
    EXPECT_TRUE(d.modeColor(d.modeOf("SyntaxColoring:Tag")).isValid());
}

TEST_F(SyntaxDefinitionTest, AnUnreadableDefinitionIsPlainText)
{
    const QString damaged = dir.filePath("HTML.plist");
    test::writeFile(damaged, "<plist><dict><key>Components");
    for (const QString& path : {damaged, dir.filePath("missing.plist")}) {
        SyntaxColorizer c(SyntaxDefinition::load(path, nullptr));
        c.setText("<b>x</b>");
        EXPECT_TRUE(c.definition().isPlainText());
        EXPECT_TRUE(c.runs(0, 8).empty());
    }
    EXPECT_FALSE(SyntaxDefinition::registerColorDefaults(settings, damaged));
}

// Editing: after each edit the modes must be what colouring the whole new
// text gives, while only the affected lines are recoloured.
TEST(SyntaxColorizerTest, RecoloursTheAffectedTextOnly)
{
    const struct
    {
        const char* what;
        const char* before;
        int position;
        int removed;
        const char* added;
        int maxRecoloured; // characters recoloured at most
    } edits[] = {
        {"typing in a plain line recolours that line", "aaa\nbbb\nccc\nddd", 5, 0, "x", 5},
        {"opening a comment recolours to the end", "aaa\nbbb\nccc\nddd", 4, 0, "/*", 18},
        {"closing a comment recolours what it covered", "a /*\nbbb\nccc\nddd\neee", 7, 0, "*/", 22},
        {"typing inside a comment recolours the comment", "x\n/* a\nb\nc */\ny\nz", 5, 0, "q", 13},
        {"typing inside an unterminated comment recolours to the end", "x\n/* a\nb\nc\nd", 5, 0, "q", 12},
        {"deleting a line break joins the lines", "if\nif\nzz", 2, 1, "", 6},
        {"deleting the comment start", "/* a\nb\nc */ if\nd", 0, 2, "", 20},
        {"typing a quote opens a string across lines", "a\nb\nc \"d\ne", 2, 0, "\"", 12},
        {"deleting everything", "if", 0, 2, "", 0},
    };
    for (const auto& e : edits) {
        SyntaxColorizer c(SyntaxDefinition::fromDictionary(testLanguage(), nullptr));
        c.setText(e.before);
        const SyntaxColorizer::Range range = c.textChanged(e.position, e.removed, e.added);
        EXPECT_EQ(modeString(c).toStdString(), colored(c.text()).toStdString()) << e.what;
        EXPECT_LE(range.length, e.maxRecoloured) << e.what;
    }
}

TEST(SyntaxColorizerTest, RandomEditsColourAsTheWholeTextWould)
{
    QRandomGenerator random(12);
    const QStringList pieces{"/*", "*/", "\"", "\\", "<", ">", "\n", "if", " ", "x", "//", "%TOTAL%"};
    SyntaxColorizer c(SyntaxDefinition::fromDictionary(testLanguage(), nullptr));
    c.setText("<p>\nif x\n</p>\n");
    for (int step = 0; step < 3000; ++step) {
        const int n = int(c.text().size());
        const int position = int(random.bounded(n + 1));
        const int removed = random.bounded(3) == 0 ? int(random.bounded(std::min(n - position, 4) + 1)) : 0;
        const QString added = random.bounded(4) == 0 ? QString() : pieces[random.bounded(pieces.size())];
        const QString before = c.text();
        c.textChanged(position, removed, added);
        ASSERT_EQ(modeString(c).toStdString(), colored(c.text()).toStdString())
            << "step " << step << ": " << QString(before).replace('\n', "|").toStdString() << " at "
            << position << " -" << removed << " +" << QString(added).replace('\n', "|").toStdString();
    }
}

TEST(SyntaxColorizerTest, WithoutAutomaticColouringEditsKeepTheirModes)
{
    SyntaxColorizer c(SyntaxDefinition::fromDictionary(testLanguage(), nullptr));
    c.setAutoSyntaxColoring(false);
    c.setText("a b");
    EXPECT_EQ(c.textChanged(0, 0, "if "), SyntaxColorizer::Range{});
    EXPECT_EQ(modeString(c), "......");
}

TEST(SyntaxColorizerTest, ReturnRepeatsTheLeadingTabsAndSpaces)
{
    EXPECT_EQ(SyntaxColorizer::indentationBefore("a\n\t  b c", 8), "\t  ");
    EXPECT_EQ(SyntaxColorizer::indentationBefore("  x\nplain", 9), "");
    EXPECT_EQ(SyntaxColorizer::indentationBefore("\t\t", 1), "\t");
    EXPECT_EQ(SyntaxColorizer::indentationBefore("", 0), "");
}

// Golden files: the colour runs of built-in templates and style sheets that
// together use every mode of both languages, one line per text line that has
// runs ("12: 0+4 Tag, 5+3 String").
// Set VORN_UPDATE_GOLDEN=1 to write them anew after a deliberate change (the
// run then fails, so that the difference is reviewed).
QString runsByLine(const SyntaxColorizer& c)
{
    QString out;
    const QString& text = c.text();
    int lineStart = 0;
    int line = 1;
    while (lineStart <= text.size()) {
        int end = int(text.indexOf('\n', lineStart));
        if (end < 0)
            end = int(text.size());
        QStringList parts;
        for (const SyntaxRun& r : c.runs(lineStart, end - lineStart))
            parts << QString("%1+%2 %3")
                         .arg(r.start - lineStart)
                         .arg(r.length)
                         .arg(c.definition().modeName(r.mode));
        if (!parts.isEmpty())
            out += QString("%1: %2\n").arg(line).arg(parts.join(", "));
        lineStart = end + 1;
        ++line;
    }
    return out;
}

TEST(SyntaxColorizerTest, ColourRunsMatchTheGoldenFiles)
{
    for (const QString file : {"Temp001/invoice.html", "Temp001/style.css", "CSS.css"}) {
        SCOPED_TRACE(file.toStdString());
        const QString text = test::readText(VORN_SOURCE_DIR "/resources/designs/" + file);
        ASSERT_FALSE(text.isEmpty());
        SyntaxColorizer c(SyntaxDefinition::load(
            file.endsWith(".css") ? SyntaxDefinition::cssPath() : SyntaxDefinition::htmlPath(), nullptr));
        ASSERT_FALSE(c.definition().isPlainText());
        c.setText(text);
        const QString actual = runsByLine(c);
        const QString golden =
            VORN_SOURCE_DIR "/tests/designs/golden/" + QString(file).replace('/', '-') + ".runs";
        if (qEnvironmentVariableIntValue("VORN_UPDATE_GOLDEN")) {
            test::writeFile(golden, actual.toUtf8());
            ADD_FAILURE() << "wrote " << golden.toStdString()
                          << "; review the difference, then run without VORN_UPDATE_GOLDEN";
        }
        EXPECT_EQ(actual.toStdString(), test::readText(golden).toStdString());
    }
}

} // namespace
