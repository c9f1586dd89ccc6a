#pragma once

#include "TableDef.h"

namespace kuyum {

/// Differs from the sample company in tables, fields, types, sizes, indexes.
inline QList<TableDef> chosenTables()
{
    const auto field = [](const char16_t *name, FieldType type, int size = 0,
                          const QVariant &preset = {}) {
        return FieldDef{QString::fromUtf16(name), type, size, false, preset};
    };
    const auto counter = [](const char16_t *name) {
        return FieldDef{QString::fromUtf16(name), FieldType::Long, 0, true};
    };
    const auto index = [](const char16_t *name, const QStringList &fields, bool unique = false,
                          bool primary = false) {
        return IndexDef{QString::fromUtf16(name), fields, primary, unique};
    };
    using namespace Qt::StringLiterals;
    return {
        {u"TAS"_s,
         {counter(u"tasid"), field(u"Taskodu", FieldType::Text, 40),
          field(u"TasBirimi", FieldType::Text, 3), field(u"Renk", FieldType::Text, 10),
          field(u"Stok", FieldType::Double, 0, 5), field(u"Giris", FieldType::Date)},
         {index(u"PrimaryKey", {u"tasid"_s}, true, true), index(u"renk", {u"Renk"_s})}},
        {u"Ayar"_s,
         {field(u"Milyem", FieldType::Double), field(u"Yogunluk", FieldType::Single),
          field(u"Ad", FieldType::Memo)}},
        {u"Firma"_s,
         {field(u"Firkod", FieldType::Text, 10), field(u"FirAdi", FieldType::Memo),
          field(u"Aciklama", FieldType::Text, 255)},
         {index(u"tur", {u"FirAdi"_s, u"Firkod"_s}, true),
          index(u"Aciklama", {u"Aciklama"_s}, true)}},
        {u"Katalog"_s, {field(u"KatAdi", FieldType::Text, 40), counter(u"KatID")}},
        {u"Depo"_s,
         {counter(u"DepoID"), field(u"Adi", FieldType::Text, 20, u"Merkez"_s),
          field(u"Kapali", FieldType::Boolean, 0, 0)},
         {index(u"Adi", {u"Adi"_s}, true)}},
    };
}

} // namespace kuyum
