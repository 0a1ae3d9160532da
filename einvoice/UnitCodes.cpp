#include "einvoice/UnitCodes.h"

#include <QHash>

namespace vorn::UnitCodes {

namespace {

const QHash<QString, QString>& table()
{
    static const QHash<QString, QString> map = [] {
        // Spellings in the four languages of the default lists, lower case,
        // without a final full stop.
        const struct
        {
            const char* code;
            const char* names;
        } groups[] = {
            {"H87",
             "piece|pieces|pc|pcs|stück|stk|st|pièce|pièces|pce|pieza|piezas|pza|unidad|unidades|ud|uds"},
            {"C62", "unit|units|each|ea|einheit|einheiten|unité|unités"},
            {"HUR", "h|hr|hrs|hour|hours|std|stunde|stunden|heure|heures|hora|horas"},
            {"MIN", "min|mins|minute|minutes|minuten|minuto|minutos"},
            {"DAY", "d|day|days|tag|tage|jour|jours|día|días|dia|dias"},
            {"WEE", "wk|week|weeks|woche|wochen|semaine|semaines|semana|semanas"},
            {"MON", "mo|month|months|monat|monate|mois|mes|meses"},
            {"ANN", "yr|year|years|jahr|jahre|an|ans|année|années|año|años"},
            {"KGM", "kg|kilogram|kilograms|kilogramm|kilogramme|kilogrammes|kilogramo|kilogramos"},
            {"GRM", "g|gram|grams|gramm|gramme|grammes|gramo|gramos"},
            {"TNE", "t|tonne|tonnes|ton|tons|tonnen|tonelada|toneladas"},
            {"MTR", "m|metre|metres|meter|meters|mètre|mètres|metro|metros|lfm|laufmeter|laufende meter"},
            {"CMT", "cm|centimetre|centimetres|zentimeter|centimètre|centimètres|centímetro|centímetros"},
            {"MMT", "mm|millimetre|millimetres|millimeter|millimètre|millimètres|milímetro|milímetros"},
            {"KMT", "km|kilometre|kilometres|kilometer|kilomètre|kilomètres|kilómetro|kilómetros"},
            {"MTK", "m2|m²|qm|sqm|square metre|square metres|quadratmeter|mètre carré|metro cuadrado"},
            {"MTQ", "m3|m³|cbm|cubic metre|cubic metres|kubikmeter|mètre cube|metro cúbico"},
            {"LTR", "l|litre|litres|liter|liters|litro|litros"},
            {"KWH", "kwh|kilowatt hour|kilowatt hours|kilowattstunde|kilowattstunden"},
            {"LS", "lump sum|flat|flat rate|pauschal|pauschale|psch|pausch|forfait|forfaitaire|global|tanto "
                   "alzado"},
            {"SET", "set|sets|satz|jeu|jeux|juego|juegos"},
            {"PR", "pair|pairs|paar|paire|paires|par|pares"},
            {"XPK", "pack|packs|package|packages|packung|paket|pakete|paquet|paquets|paquete|paquetes"},
            {"E48", "service|services|leistung|dienstleistung|prestation|servicio"},
            {"D64", "block|blocks"},
            {"XBX", "box|boxes|karton|schachtel|boîte|caja|cajas"},
            {"E49", "working day|working days|arbeitstag|arbeitstage|jour ouvré|jours ouvrés|día laborable"},
        };
        QHash<QString, QString> m;
        for (const auto& group : groups) {
            const QString code = QString::fromLatin1(group.code);
            for (const QString& name : QString::fromUtf8(group.names).split(QLatin1Char('|')))
                m.insert(name, code);
            // The code itself, as a user may already write it.
            m.insert(code.toLower(), code);
        }
        return m;
    }();
    return map;
}

} // namespace

QString code(const QString& unit)
{
    QString key = unit.simplified().toLower();
    while (key.endsWith(QLatin1Char('.')))
        key.chop(1);
    return table().value(key, QStringLiteral("C62"));
}

} // namespace vorn::UnitCodes
