#include "ui/PreferencesWindow.h"

#include "app/AppDelegate.h"
#include "designs/DesignBuilder.h"
#include "designs/DesignController.h"
#include "store/Keys.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "ui/MainWindow.h"
#include "ui/PreferencesBuilderPane.h"
#include "ui/PreferencesDesignList.h"
#include "ui/PreferencesForm.h"
#include "ui/PreferencesLivePreview.h"
#include "ui/UiLog.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QComboBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace vorn {

namespace {

QPointer<PreferencesWindow> sharedWindow;

const QString builderIdentifier = QStringLiteral("View8ItemIdentifier");
const QString previewIdentifier = QStringLiteral("PreviewIdentifier");
constexpr int builderTag = 7;

QString viewIdentifier(int n)
{
    return QStringLiteral("View%1ItemIdentifier").arg(n);
}

QStringList termChoices()
{
    return {QCoreApplication::translate("PreferencesWindow", "7 days"),
            QCoreApplication::translate("PreferencesWindow", "14 days"),
            QCoreApplication::translate("PreferencesWindow", "21 days"),
            QCoreApplication::translate("PreferencesWindow", "28 days")};
}

// In the order of the stored index; the class's own translations.
QStringList paperChoices()
{
    return {QCoreApplication::translate("vorn::PreferencesWindow", "US Letter"),
            QCoreApplication::translate("vorn::PreferencesWindow", "US Legal"),
            QCoreApplication::translate("vorn::PreferencesWindow", "A4"),
            QCoreApplication::translate("vorn::PreferencesWindow", "JIS B4"),
            QCoreApplication::translate("vorn::PreferencesWindow", "JIS B5")};
}

} // namespace

QStringList PreferencesWindow::toolbarDefaultItemIdentifiers()
{
    return {viewIdentifier(8), viewIdentifier(5), viewIdentifier(4),
            viewIdentifier(1), viewIdentifier(3), previewIdentifier};
}

QStringList PreferencesWindow::toolbarAllowedItemIdentifiers()
{
    return {viewIdentifier(1), viewIdentifier(3), viewIdentifier(4),
            viewIdentifier(5), viewIdentifier(8), previewIdentifier};
}

QStringList PreferencesWindow::toolbarSelectableItemIdentifiers()
{
    QStringList ids;
    for (int n = 1; n <= 8; ++n)
        ids << viewIdentifier(n);
    return ids;
}

void PreferencesWindow::showShared(AppDelegate& app, QWidget* parent)
{
    if (!sharedWindow)
        sharedWindow = new PreferencesWindow(app, parent);
    sharedWindow->show();
    sharedWindow->raise();
    sharedWindow->activateWindow();
}

PreferencesWindow::PreferencesWindow(AppDelegate& app, QWidget* parent)
    : QMainWindow(parent, Qt::Window), m_app(app), m_designs(std::make_unique<DesignController>(app.state())),
      m_designBuilder(std::make_unique<DesignBuilder>(app.state(), *m_designs))
{
    setObjectName(QStringLiteral("PreferencesWindow"));
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowTitle(QStringLiteral("Orvandel"));
    setAccessibleName(tr("Preferences"));
    m_toolBar = MainWindow::addFixedToolBar(*this, tr("Preferences"),
                                            QStringLiteral("Vorn.qvpreferencepanel.toolbar"));
    m_group = new QActionGroup(this);
    m_group->setExclusive(true);
    m_container = new QWidget(this);
    auto* layout = new QVBoxLayout(m_container);
    layout->setContentsMargins(0, 0, 0, 0);
    setCentralWidget(m_container);

    m_designs->restoreSelection();
    m_preview = new QAction(QIcon::fromTheme(QStringLiteral("document-print-preview"),
                                             style()->standardIcon(QStyle::SP_FileDialogContentsView)),
                            tr("Preview"), this);
    m_preview->setObjectName(previewIdentifier);
    m_preview->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_P));
    connect(m_preview, &QAction::triggered, this, [this] {
        changePanes(builderTag);
        m_builder->storeEdits();
        m_designs->save();
        m_builder->preview()->refresh();
    });
    addAction(m_preview);
    m_builder = new PreferencesBuilderPane(app, *m_designs, *m_designBuilder, m_container);
    addPane(viewIdentifier(1), 0, tr("Company"), "user-info", padded(companyPane()));
    addPane(viewIdentifier(2), 1, tr("Invoice"), "accessories-text-editor", padded(numberingPane()));
    addPane(viewIdentifier(3), 2, tr("Invoice"), "x-office-document", textsPane());
    addPane(viewIdentifier(4), 3, tr("Template"), "text-x-generic-template", padded(templatePane()));
    addPane(viewIdentifier(5), 4, tr("Design"), "applications-graphics", designPane());
    addPane(viewIdentifier(6), 5, tr("Region"), "preferences-desktop-locale", padded(regionPane()));
    addPane(viewIdentifier(7), 6, tr("Clients"), "system-users", padded(clientsPane()));
    addPane(builderIdentifier, builderTag, tr("Builder"), "applications-development", m_builder);

    // The toolbar shows its default items; the menu reaches every pane.
    QMenu* menu = menuBar()->addMenu(tr("&Panes"));
    for (const QString& id : toolbarDefaultItemIdentifiers()) {
        if (id == previewIdentifier) {
            m_toolBar->addAction(m_preview);
            continue;
        }
        for (const Pane& pane : std::as_const(m_panes))
            if (pane.identifier == id)
                m_toolBar->addAction(pane.action);
    }
    for (const Pane& pane : std::as_const(m_panes))
        menu->addAction(pane.action);
    menu->addSeparator();
    menu->addAction(m_preview);

    for (const Pane& pane : std::as_const(m_panes))
        pane.view->hide();
    changePanes(builderTag);
    if (QScreen* screen = this->screen())
        move(screen->availableGeometry().center() - rect().center());
}

PreferencesWindow::~PreferencesWindow()
{
    // The panes use the design library, which goes with this window's
    // members, before the base class would delete them.
    delete takeCentralWidget();
}

void PreferencesWindow::addPane(const QString& identifier, int tag, const QString& label, const char* theme,
                                QWidget* view)
{
    static const QStyle::StandardPixmap fallbacks[] = {
        QStyle::SP_DirHomeIcon,        QStyle::SP_FileIcon,          QStyle::SP_FileDialogDetailedView,
        QStyle::SP_FileDialogListView, QStyle::SP_DesktopIcon,       QStyle::SP_ComputerIcon,
        QStyle::SP_DirOpenIcon,        QStyle::SP_FileDialogInfoView};
    auto* action = new QAction(QIcon::fromTheme(QLatin1String(theme), style()->standardIcon(fallbacks[tag])),
                               label, this);
    action->setObjectName(identifier);
    action->setCheckable(true);
    action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + tag)));
    action->setToolTip(
        QStringLiteral("%1 (%2)").arg(label, action->shortcut().toString(QKeySequence::NativeText)));
    m_group->addAction(action);
    addAction(action);
    connect(action, &QAction::triggered, this, [this, tag] { changePanes(tag); });
    view->setParent(m_container);
    view->setAccessibleName(label);
    m_panes.append({identifier, tag, label, view, action});
}

QWidget* PreferencesWindow::padded(QWidget* form)
{
    form->setContentsMargins(16, 12, 16, 12);
    return form;
}

const PreferencesWindow::Pane* PreferencesWindow::findPane(int tag) const
{
    for (const Pane& pane : m_panes)
        if (pane.tag == tag)
            return &pane;
    return nullptr;
}

QWidget* PreferencesWindow::paneView(int tag) const
{
    const Pane* found = findPane(tag);
    return found ? found->view : nullptr;
}

void PreferencesWindow::changePanes(int tag)
{
    const Pane* next = findPane(tag);
    if (!next || tag == m_current)
        return;
    QWidget* view = next->view;
    if (m_current == builderTag)
        m_builderSize = size();
    if (QWidget* old = paneView(m_current)) {
        m_container->layout()->removeWidget(old);
        old->hide();
    }
    m_current = tag;
    m_container->layout()->addWidget(view);
    view->show();
    next->action->setChecked(true);
    fitToPane(view);
    // The first field of the pane, so the keyboard can start at once.
    view->setFocus();
    if (QWidget* next = view->nextInFocusChain(); next && view->isAncestorOf(next))
        next->setFocus(Qt::TabFocusReason);
}

void PreferencesWindow::fitToPane(QWidget* view)
{
    // The window's top edge stays where it is; only the builder may be
    // resized by the user.
    const QPoint topLeft = pos();
    const int chrome = menuBar()->sizeHint().height() + m_toolBar->sizeHint().height();
    if (m_current == builderTag) {
        setMinimumSize(760, 480);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        QSize wanted = m_builderSize.isValid() ? m_builderSize : QSize(1180, 700);
        if (QScreen* screen = this->screen())
            wanted = wanted.boundedTo(screen->availableGeometry().size() - QSize(20, 60));
        resize(wanted);
    } else {
        view->adjustSize();
        const QSize pane =
            view->sizeHint().expandedTo(view->minimumSizeHint()).expandedTo(view->minimumSize());
        const QSize wanted(std::max(pane.width(), m_toolBar->sizeHint().width()), pane.height() + chrome);
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        resize(wanted);
        setFixedSize(wanted);
    }
    move(topLeft);
}

void PreferencesWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    // The first showing settles the window's frame; the pane is fitted again
    // inside it, and the preview of the builder made.
    if (!m_shownOnce) {
        m_shownOnce = true;
        fitToPane(paneView(m_current));
        m_builder->preview()->schedule();
    }
}

void PreferencesWindow::save()
{
    m_builder->storeEdits();
    m_designs->save();
    if (Status s = m_app.settings().synchronize(); !s)
        qCWarning(lcUi).noquote() << "the settings were not saved:" << s.error().fullText();
}

void PreferencesWindow::closeEvent(QCloseEvent* event)
{
    save();
    event->accept();
}

void PreferencesWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && !isActiveWindow() && isVisible())
        save();
    QMainWindow::changeEvent(event);
}

PreferencesForm* PreferencesWindow::companyPane()
{
    auto* f = new PreferencesForm(m_app.settings());
    f->addSection(tr("Your company"));
    f->addLine(key::prefsName, tr("&Name:"));
    f->addText(key::prefsContact, tr("&Contact:"), 5);
    f->addLine(QStringLiteral("prefsLetterbox"), tr("&Letterbox line:"));
    f->addLine(QStringLiteral("prefsSlogan"), tr("&Slogan:"));
    auto* logoRow = new QWidget(f);
    auto* row = new QHBoxLayout(logoRow);
    row->setContentsMargins(0, 0, 0, 0);
    m_logo = new QLabel(logoRow);
    m_logo->setFixedSize(120, 60);
    m_logo->setFrameShape(QFrame::StyledPanel);
    m_logo->setAlignment(Qt::AlignCenter);
    m_logo->setAccessibleName(tr("Logo"));
    auto* choose = new QPushButton(tr("Choose…"), logoRow);
    choose->setAccessibleName(tr("Choose logo"));
    auto* remove = new QPushButton(tr("Remove"), logoRow);
    remove->setAccessibleName(tr("Remove logo"));
    row->addWidget(m_logo);
    row->addWidget(choose);
    row->addWidget(remove);
    row->addStretch();
    f->addRow(tr("Logo:"), logoRow);
    logoRow->setAccessibleName(tr("Logo"));
    // A refused file is explained by chooseLogo itself.
    connect(choose, &QPushButton::clicked, this, [this] { (void)m_designBuilder->chooseLogo(); });
    connect(remove, &QPushButton::clicked, this, [this] { m_designBuilder->removeLogo(); });
    connect(m_designBuilder.get(), &DesignBuilder::designChanged, this, &PreferencesWindow::updateLogo);
    updateLogo();
    // What e-invoices need of the seller; empty until filled in.
    f->addSection(tr("E-invoices"));
    f->addLine(key::prefsLegalName, tr("Le&gal name:"));
    f->addLine(key::prefsStreet, tr("S&treet:"));
    f->addLine(key::prefsPostcode, tr("&Postcode:"));
    f->addLine(key::prefsCity, tr("C&ity:"));
    f->addLine(key::prefsCountryCode, tr("Co&untry code:"));
    f->addLine(key::prefsVatID, tr("&VAT identifier:"));
    f->addLine(key::prefsTaxNumber, tr("Ta&x number:"));
    f->addLine(key::prefsContactEmail, tr("Contact &e-mail:"));
    f->addLine(key::prefsContactPhone, tr("Contact p&hone:"));
    f->setMinimumWidth(560);
    return f;
}

void PreferencesWindow::updateLogo()
{
    if (!m_logo)
        return;
    QPixmap logo;
    if (logo.loadFromData(m_app.settings().dataValue(key::prefsLogo)))
        m_logo->setPixmap(
            logo.scaled(m_logo->size() - QSize(6, 6), Qt::KeepAspectRatio, Qt::SmoothTransformation));
    else
        m_logo->setText(tr("No logo"));
}

PreferencesForm* PreferencesWindow::numberingPane()
{
    auto* f = new PreferencesForm(m_app.settings());
    f->addSection(tr("Invoices"));
    f->addCheck(key::invHaveNumber, tr("Number new invoices"));
    f->addLine(key::invPattern, tr("Invoice number pattern:"));
    f->addInteger(key::invCount, tr("Invoice counter offset:"), -1000000, 1000000);
    f->addCheck(key::invHaveDueDate, tr("Give new invoices a due date"));
    f->addChoice(key::invDefaultDueDate, tr("Due after:"), termChoices());
    f->addSection(tr("Quotes"));
    f->addCheck(key::quotHaveNumber, tr("Number new quotes"));
    f->addLine(key::quotPattern, tr("Quote number pattern:"));
    f->addInteger(key::quotCount, tr("Quote counter offset:"), -1000000, 1000000);
    f->addCheck(key::quotHaveValidity, tr("Give new quotes an expiry date"));
    f->addChoice(key::quotDefaultValidity, tr("Valid for:"), termChoices());
    f->setMinimumWidth(520);
    return f;
}

QWidget* PreferencesWindow::textsPane()
{
    Settings& settings = m_app.settings();
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(16, 12, 16, 12);
    auto* texts = new QTabWidget(pane);
    texts->setAccessibleName(tr("Document texts"));
    const std::tuple<QString, const char*, const char*> kinds[] = {
        {tr("Invoice"), "tempInvConditions", "tempInvFooter"},
        {tr("Quote"), "tempQuotConditions", "tempQuotFooter"},
        {tr("Reminder"), "tempRemConditions", "tempRemFooter"}};
    for (const auto& [title, conditions, footer] : kinds) {
        auto* f = new PreferencesForm(settings, texts);
        f->addText(QLatin1String(conditions), tr("%1 conditions:").arg(title), 3);
        f->addText(QLatin1String(footer), tr("%1 footer:").arg(title), 3);
        if (title == tr("Invoice"))
            f->addText(QStringLiteral("tempInvMisc"), tr("Miscellaneous:"), 2);
        texts->addTab(f, title);
    }
    layout->addWidget(texts);

    auto* taxes = new PreferencesForm(settings, pane);
    taxes->addSection(tr("Taxes"));
    for (int n = 1; n <= 3; ++n) {
        const QString prefix = QStringLiteral("tax%1").arg(n);
        taxes->addCheck(prefix + QStringLiteral("Enabled"), tr("Tax %1 applies").arg(n));
        taxes->addLine(prefix + QStringLiteral("Title"), tr("Tax %1 title:").arg(n));
        taxes->addPercent(prefix + QStringLiteral("Rate"), tr("Tax %1 rate:").arg(n));
        if (n > 1)
            taxes->addCheck(prefix + QStringLiteral("IsCompound"),
                            tr("Tax %1 is charged on the taxes before it").arg(n));
    }
    layout->addWidget(taxes);
    pane->setMinimumWidth(600);
    return pane;
}

PreferencesForm* PreferencesWindow::templatePane()
{
    Settings& settings = m_app.settings();
    auto* f = new PreferencesForm(settings);
    f->addSection(tr("Words printed on documents"));
    const std::pair<const char*, QString> words[] = {{"locInvoice", tr("Invoice:")},
                                                     {"locQuote", tr("Quote:")},
                                                     {"locReminder", tr("Reminder:")},
                                                     {"locInvoiceNumber", tr("Invoice number:")},
                                                     {"locQuoteNumber", tr("Quote number:")},
                                                     {"locClientNumber", tr("Client number:")},
                                                     {"locDate", tr("Date:")},
                                                     {"locDue", tr("Due:")},
                                                     {"locSubtotal", tr("Subtotal:")},
                                                     {"locTotal", tr("Total:")},
                                                     {"locDiscount", tr("Discount:")},
                                                     {"locShipping", tr("Shipping:")},
                                                     {"locDescription", tr("Description:")},
                                                     {"locQuantity", tr("Quantity:")},
                                                     {"locUnitPrice", tr("Unit price:")},
                                                     {"locPageOf", tr("Page numbers:")}};
    auto* grid = new QWidget(f);
    auto* columns = new QHBoxLayout(grid);
    columns->setContentsMargins(0, 0, 0, 0);
    PreferencesForm* halves[2] = {new PreferencesForm(settings, grid), new PreferencesForm(settings, grid)};
    int i = 0;
    for (const auto& [key, label] : words)
        halves[i++ % 2]->addLine(QLatin1String(key), label);
    for (PreferencesForm* half : halves) {
        half->layout()->setContentsMargins(0, 0, 0, 0);
        columns->addWidget(half);
    }
    f->form()->addRow(grid);

    f->addSection(tr("Printing"));
    f->addCheck(QStringLiteral("tempPrintNumbers"), tr("Print page numbers"));
    f->addCheck(QStringLiteral("tempPrintDetails"),
                tr("Print the document's details beside the page numbers"));
    f->addCheck(QStringLiteral("printBorderless"), tr("Print without margins"));
    f->addCheck(key::showItemSubAmount, tr("Item rows show the net amount"));
    f->addCheck(QStringLiteral("tempUseSKU"), tr("Item rows show the article number"));
    f->addCheck(key::markInvoiceAsSent, tr("Printing or exporting marks the document as sent"));
    auto* fontRow = new QWidget(f);
    auto* row = new QHBoxLayout(fontRow);
    row->setContentsMargins(0, 0, 0, 0);
    m_borderFont = new QLabel(fontRow);
    m_borderFont->setAccessibleName(tr("Border font"));
    auto* choose = new QPushButton(tr("Choose…"), fontRow);
    choose->setAccessibleName(tr("Choose border font"));
    row->addWidget(m_borderFont, 1);
    row->addWidget(choose);
    f->addRow(tr("Border font:"), fontRow);
    auto showFont = [this, &settings] {
        const QString name = settings.stringValue(QStringLiteral("tempBorderFont"));
        m_borderFont->setText(name.isEmpty() ? QStringLiteral("Times") : name);
    };
    showFont();
    connect(&settings, &Settings::valueChanged, m_borderFont, [showFont](const QString& key) {
        if (key == QLatin1String("tempBorderFont"))
            showFont();
    });
    // Only the font's name is kept: the border line is always 7 points.
    connect(choose, &QPushButton::clicked, this, [this, &settings] {
        bool ok = false;
        const QFont font = QFontDialog::getFont(&ok, QFontDatabase::systemFont(QFontDatabase::GeneralFont),
                                                this, tr("Border Font"));
        if (ok)
            settings.setValue(QStringLiteral("tempBorderFont"), font.family());
    });
    f->setMinimumWidth(640);
    return f;
}

QWidget* PreferencesWindow::designPane()
{
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(16, 12, 16, 12);
    auto* hint = new QLabel(
        tr("Every document is rendered with the default design. Edit designs in the Builder."), pane);
    hint->setWordWrap(true);
    auto* list = new PreferencesDesignList(m_app.state(), *m_designs, *m_designBuilder, pane);
    connect(list, &PreferencesDesignList::previewRequested, m_preview, &QAction::trigger);
    layout->addWidget(hint);
    layout->addWidget(list, 1);
    auto* paper = new PreferencesForm(m_app.settings(), pane);
    paper->layout()->setContentsMargins(0, 0, 0, 0);
    paper->addChoice(QStringLiteral("tempPaperSize"), tr("Paper:"), paperChoices());
    layout->addWidget(paper);
    pane->setMinimumSize(620, 420);
    return pane;
}

PreferencesForm* PreferencesWindow::regionPane()
{
    auto* f = new PreferencesForm(m_app.settings());
    f->addSection(tr("Money and dates"));
    f->addLine(key::prefsCurrency, tr("&Currency:"));
    f->addLine(QStringLiteral("prefsDatePattern"), tr("&Date pattern:"));
    f->addChoice(QStringLiteral("tempPaperSize"), tr("&Paper:"), paperChoices());
    f->addSection(tr("Payments"));
    f->addLine(key::prefsIBAN, tr("&IBAN:"));
    f->addLine(key::prefsBIC, tr("&BIC:"));
    f->addLine(key::prefsAccountHolder, tr("Account &holder:"));
    f->addCheck(key::prefsFacturXDefault, tr("Export invoices as Factur-X PDF (e-invoice)"));
    f->setMinimumWidth(460);
    return f;
}

PreferencesForm* PreferencesWindow::clientsPane()
{
    auto* f = new PreferencesForm(m_app.settings());
    f->addSection(tr("Client addresses"));
    f->addText(key::prefsAddressPattern, tr("&Address pattern:"), 6);
    f->addLine(key::clientPattern, tr("Client number &pattern:"));
    f->addInteger(key::clientCount, tr("Client counter offset:"), -1000000, 1000000);
    f->setMinimumWidth(520);
    return f;
}

} // namespace vorn
