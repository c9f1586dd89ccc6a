#include "Schema.h"

#include "CompanyLock.h"
#include "Counters.h"
#include "Database.h"
#include "TurkishText.h"

#include <algorithm>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

FieldDef text(const QString &name, int size)
{
    return {name, FieldType::Text, size};
}

/// A whole number field with the legacy default 0.
FieldDef number(const QString &name, FieldType type = FieldType::Integer)
{
    return {name, type, 0, false, 0};
}

FieldDef longField(const QString &name)
{
    return {name, FieldType::Long};
}

FieldDef real(const QString &name)
{
    return {name, FieldType::Double};
}

FieldDef date(const QString &name)
{
    return {name, FieldType::Date};
}

FieldDef flag(const QString &name)
{
    return {name, FieldType::Boolean, 0, false, 0};
}

FieldDef counter(const QString &name)
{
    return {name, FieldType::Long, 0, true};
}

IndexDef key(const QStringList &fields)
{
    return {u"PrimaryKey"_s, fields, true, true};
}

IndexDef index(const QStringList &fields, bool unique = false)
{
    return {fields.join(u'_'), fields, false, unique};
}

QList<TableDef> masterTables()
{
    return {
        {u"XXX"_s,
         {number(u"TeraziTip"_s), number(u"ComportID"_s), text(u"comportST"_s, 50),
          text(u"YaziciAdi"_s, 100), real(u"sabitayar"_s)}},
        {u"Firma"_s,
         {longField(u"Firkod"_s), text(u"FirAdi"_s, 80), text(u"Yetkili"_s, 50),
          text(u"Telefon"_s, 30), text(u"Mail"_s, 80), text(u"KisaAD"_s, 20),
          text(u"Aciklama"_s, 255), longField(u"UlkeID"_s)},
         {key({u"Firkod"_s}), index({u"FirAdi"_s})}},
        {u"Ulkeler"_s, {counter(u"ID"_s), text(u"ulke_ADI"_s, 50)}, {index({u"ulke_ADI"_s})}},
        {u"UrunTipi"_s,
         {counter(u"TipID"_s), text(u"UrunTipi"_s, 40), text(u"KisaAD"_s, 10), number(u"Sirano"_s),
          date(u"tiptarih"_s)},
         {index({u"KisaAD"_s}), index({u"Sirano"_s})}},
        {u"Tas"_s,
         {counter(u"TasID"_s), text(u"Taskodu"_s, 20), real(u"TasFiyati"_s),
          text(u"TasBirimi"_s, 5), real(u"TasKatsayi"_s), date(u"tastarih"_s)},
         {index({u"Taskodu"_s}, true)}},
        {u"Kalip"_s,
         {counter(u"KalipID"_s), text(u"KalipKodu"_s, 20), text(u"KalipAck"_s, 60),
          text(u"KalipDur"_s, 10), date(u"kaliptarih"_s)},
         {index({u"KalipKodu"_s}, true)}},
        {u"Model"_s,
         {counter(u"Model_ID"_s), text(u"Model"_s, 30), longField(u"M_Uruntip"_s),
          real(u"M_Miktar"_s), number(u"M_Tip"_s), number(u"M_Kod"_s, FieldType::Long),
          real(u"M_Adet"_s)},
         {index({u"Model"_s, u"M_Uruntip"_s}), index({u"M_Kod"_s, u"M_Tip"_s})}},
        {u"Renkler"_s,
         {text(u"RenkNo"_s, 5), number(u"Renksira"_s)},
         {key({u"RenkNo"_s}), index({u"Renksira"_s})}},
        {u"Ayar"_s, {number(u"Milyem"_s), real(u"Yogunluk"_s)}, {key({u"Milyem"_s})}},
        {u"Katalog"_s,
         {text(u"KatAdi"_s, 40), longField(u"katno1"_s), real(u"katgram"_s),
          text(u"kataciklama"_s, 100)},
         {index({u"KatAdi"_s})}},
        {u"KatalogSira"_s, {text(u"KatAdi"_s, 255)}, {key({u"KatAdi"_s})}},
        {u"EskiEtiket"_s,
         {longField(u"Ilk"_s), longField(u"Son"_s), text(u"Model"_s, 255),
          longField(u"M_Uruntip"_s)},
         {index({u"Son"_s, u"Ilk"_s})}},
    };
}

QList<TableDef> orderTables()
{
    return {
        {u"SiparisB"_s,
         {counter(u"Sipnum"_s),
          date(u"SipTrh"_s),
          date(u"TesTrh"_s),
          longField(u"SipFirkod"_s),
          number(u"Ayar"_s),
          text(u"Patent"_s, 20),
          {u"Aciklama"_s, FieldType::Memo}},
         {index({u"SipTrh"_s, u"Sipnum"_s}), index({u"SipFirkod"_s})}},
        {u"SiparisD"_s,
         {longField(u"SipnumD"_s), counter(u"Dotosayi"_s), number(u"SipSatir"_s),
          text(u"SipModel"_s, 30), longField(u"SipUruntip"_s), text(u"Siprenk"_s, 5),
          text(u"SipAck"_s, 100), number(u"SipAdet"_s, FieldType::Long), text(u"Drm1"_s, 30),
          text(u"Drm2"_s, 30), date(u"Trhbas"_s), date(u"Trhbit"_s)},
         {index({u"SipnumD"_s}), index({u"SipModel"_s, u"SipUruntip"_s})}},
        {u"Durum1"_s, {text(u"d1_tanim"_s, 30)}, {index({u"d1_tanim"_s}, true)}},
        {u"Durum2"_s, {text(u"d2_tanim"_s, 30)}, {index({u"d2_tanim"_s}, true)}},
        {u"DovizB"_s,
         {text(u"Dovcinsi"_s, 5), number(u"DovUlke"_s), number(u"Sbak"_s), number(u"Esira"_s)},
         {key({u"Dovcinsi"_s})}},
        {u"DovizD"_s,
         {date(u"Tarih"_s), text(u"Dovcinsi"_s, 5), real(u"Kur"_s), real(u"aliskur"_s)},
         {index({u"Tarih"_s, u"Dovcinsi"_s})}},
    };
}

QList<TableDef> userTables()
{
    return {
        {u"Users"_s,
         {longField(u"User_ID"_s), text(u"User_Name"_s, 30), text(u"user_pass"_s, 20),
          number(u"user_level"_s), date(u"user_lastentry"_s), date(u"user_lastsistem"_s),
          number(u"user_ambkod"_s), number(u"User_Sil"_s), number(u"user_yetki1"_s)},
         {key({u"User_ID"_s}), index({u"User_Name"_s})}},
        {u"Menuler"_s, {longField(u"m_ID"_s), text(u"m_Adi"_s, 50)}, {key({u"m_ID"_s})}},
        {u"MenuKisit"_s,
         {longField(u"MK_userid"_s), longField(u"MK_menuid"_s)},
         {index({u"MK_userid"_s, u"MK_menuid"_s})}},
    };
}

QList<TableDef> labelTables()
{
    return {
        {u"Barkodtip"_s,
         {longField(u"BarkodTip_ID"_s), text(u"BarkodTip_Ad"_s, 30), flag(u"BarkodTip_OzelUrun"_s),
          number(u"pBarkod_Top"_s, FieldType::Long), number(u"pBarkod_Left"_s, FieldType::Long),
          number(u"BasSatiri"_s), number(u"BasSutunu"_s), number(u"pic_Top"_s, FieldType::Long),
          number(u"pic_Left"_s, FieldType::Long)},
         {key({u"BarkodTip_ID"_s})}},
        {u"BarkodtipAlanlar"_s,
         {longField(u"btipno"_s), number(u"alanno"_s), text(u"alanadi"_s, 30), flag(u"Check"_s),
          text(u"FontName"_s, 40), real(u"boyut"_s), flag(u"Bold"_s),
          number(u"pic_Top"_s, FieldType::Long), number(u"pic_Left"_s, FieldType::Long)},
         {index({u"btipno"_s, u"alanno"_s})}},
        {u"Barkodtipozel"_s,
         {longField(u"btipno"_s), text(u"BarkodKod_Kod"_s, 30), text(u"BarkodKod_Isim"_s, 60)},
         {index({u"btipno"_s})}},
    };
}

/// Opening a file for work adds what it lacks, so whatever is not ours is
/// refused before that, through a connection that writes nothing.
void requireOurs(const QString &path, const QStringList &tables, const QString &refusal)
{
    const std::unique_ptr<Database> db = Database::open(path, Database::Access::ReadOnly);
    for (const QString &table : tables) {
        if (!db->hasTable(table))
            throw DatabaseError(refusal + path);
    }
    if (db->schemaVersion() > currentSchemaVersion) {
        throw DatabaseError(u"Bu dosya programın daha yeni bir sürümü ile yazılmış, açılamaz: "_s +
                            path);
    }
}

std::unique_ptr<Database> openCurrent(const QString &path, const QList<TableDef> &tables)
{
    std::unique_ptr<Database> db = Database::open(path);
    // A file that an earlier version took over can lack a counter, and a save
    // would take its rows for one.
    if (db->schemaVersion() < currentSchemaVersion || !missingCounters(*db, tables).isEmpty()) {
        Transaction transaction(*db);
        completeTables(*db, tables);
        completeCounters(*db, tables);
        db->setSchemaVersion(currentSchemaVersion);
        transaction.commit();
    }
    return db;
}

std::unique_ptr<Database> createWith(const QString &path, const QList<TableDef> &tables)
{
    std::unique_ptr<Database> db = Database::create(path);
    Transaction transaction(*db);
    completeTables(*db, tables);
    db->setSchemaVersion(currentSchemaVersion);
    transaction.commit();
    return db;
}

} // namespace

const QList<TableDef> &companyTables()
{
    static const QList<TableDef> tables =
        masterTables() + orderTables() + userTables() + labelTables();
    return tables;
}

const QList<TableDef> &registryTables()
{
    static const QList<TableDef> tables = {
        {u"SirketKayit"_s,
         {text(u"turkod"_s, 3), longField(u"Srkkod"_s), text(u"Srkadi"_s, 80),
          text(u"DataYolu"_s, 255), text(u"ResimYolu"_s, 255), text(u"Transferyolu"_s, 255)},
         {key({u"Srkkod"_s})}},
    };
    return tables;
}

bool hasIndexOver(const TableDef &table, const IndexDef &wanted)
{
    for (const IndexDef &index : table.indexes) {
        if (index.fields.size() < wanted.fields.size() || (wanted.unique && !index.unique))
            continue;
        bool same = true;
        for (qsizetype i = 0; i < wanted.fields.size(); ++i)
            same = same && index.fields[i].compare(wanted.fields[i], Qt::CaseInsensitive) == 0;
        if (same)
            return true;
    }
    return false;
}

IndexDef freelyNamed(IndexDef index, const TableDef &table)
{
    const auto isTaken = [&] {
        return std::any_of(
            table.indexes.begin(), table.indexes.end(),
            [&](const IndexDef &present) { return sameText(present.name, index.name); });
    };
    const QString name = index.name;
    for (int number = 2; isTaken(); ++number)
        index.name = name + u'_' + QString::number(number);
    return index;
}

bool isCompany(const Database &db)
{
    const QStringList needed = {u"Users"_s, u"Firma"_s, u"Model"_s, u"SiparisB"_s, u"SiparisD"_s};
    return std::all_of(needed.begin(), needed.end(),
                       [&db](const QString &table) { return db.hasTable(table); });
}

void createIndexAsAllowed(Database &db, const QString &table, IndexDef index)
{
    try {
        db.createIndex(table, index);
    } catch (const DatabaseError &) {
        if (!index.unique)
            throw;
        index.unique = index.primary = false;
        if (!hasIndexOver(db.tableDef(table), index))
            db.createIndex(table, index);
    }
}

void completeTables(Database &db, const QList<TableDef> &tables)
{
    for (const TableDef &wanted : tables) {
        if (!db.hasTable(wanted.name)) {
            db.createTable(wanted);
            continue;
        }
        const TableDef present = db.tableDef(wanted.name);
        for (const FieldDef &field : wanted.fields) {
            if (present.field(field.name) == nullptr) {
                FieldDef added = field;
                added.counter = false; // a key cannot be added to a table that has rows
                db.addField(present.name, added);
            }
        }
        for (const IndexDef &index : wanted.indexes) {
            if (!hasIndexOver(present, index))
                createIndexAsAllowed(db, present.name, freelyNamed(index, present));
        }
    }
}

std::unique_ptr<Database> openCompany(const QString &path)
{
    // Before the first look: whoever replaces the file has it alone.
    std::unique_ptr<CompanyLock> lock;
    if (QFileInfo(path).isFile())
        lock = std::make_unique<CompanyLock>(path, CompanyLock::Kind::Shared);
    requireOurs(path, {u"Users"_s, u"SiparisB"_s, u"SiparisD"_s},
                u"Bu dosya bir şirketin veri tabanı değil: "_s);
    std::unique_ptr<Database> db = openCurrent(path, companyTables());
    db->keep(std::move(lock));
    return db;
}

std::unique_ptr<Database> openRegistry(const QString &path)
{
    requireOurs(path, {u"SirketKayit"_s}, u"Bu dosya bir şirket kayıt dosyası değil: "_s);
    return openCurrent(path, registryTables());
}

std::unique_ptr<Database> createCompany(const QString &path)
{
    return createWith(path, companyTables());
}

std::unique_ptr<Database> createRegistry(const QString &path)
{
    return createWith(path, registryTables());
}

} // namespace kuyum
