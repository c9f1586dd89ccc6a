#include "TestRegistry.h"

#include "LegacySample.h"

#include <cstring>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// Every type of field, by giving fields of the example another type that holds
/// the same bytes: what those bytes mean then is known.
class TakeOverTypesTest : public QObject
{
    Q_OBJECT

private:
    enum LegacyType { Byte = 2, Money = 5, Single = 6, Moment = 8, Binary = 9, Ole = 11 };

private Q_SLOTS:
    void init()
    {
        if (!LegacySample(u"atolye.mdb"_s).isPresent())
            QSKIP("no example files");
    }
    void doublesBitForBitAsCurrency();
    void wholeNumbersAsOtherNumbers();
    void textsAsBytes();
    void nullAndEmptyTextDiffer();
    void whatTheEngineCannotKeepRefuses();
};

namespace {

qint64 bitsOf(double value)
{
    qint64 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

QHash<qint64, QVariant> columnByKey(Database &db, const QString &table, const QString &key,
                                    const QString &field)
{
    QHash<qint64, QVariant> result;
    Recordset rows = db.query(u"Select %1, %2 From %3"_s.arg(key, field, table));
    while (rows.next())
        result.insert(rows.value(0).toLongLong(), rows.value(1));
    return result;
}

} // namespace

/// A currency is a count of 64 bits: read as one, a double shows all of its
/// bits in decimal.
void TakeOverTypesTest::doublesBitForBitAsCurrency()
{
    LegacySample sample(u"atolye.mdb"_s);
    const auto doubles = columnByKey(*sample.takenOver(), u"Tas"_s, u"TasID"_s, u"TasFiyati"_s);
    sample.retype(sample.definitionOf({u"TasFiyati"_s, u"TasKatsayi"_s}), u"TasFiyati"_s, Money);
    const std::unique_ptr<Database> db = sample.takenOver();
    QCOMPARE(db->tableDef(u"Tas"_s).field(u"TasFiyati")->type, FieldType::Currency);
    const auto currencies = columnByKey(*db, u"Tas"_s, u"TasID"_s, u"TasFiyati"_s);
    QCOMPARE(currencies.size(), doubles.size());
    int compared = 0;
    for (auto it = doubles.begin(); it != doubles.end(); ++it) {
        const QVariant currency = currencies.value(it.key());
        QCOMPARE(currency.isValid(), it->isValid());
        if (!it->isValid() || it->toDouble() == 0)
            continue;
        QString digits = currency.toString();
        QCOMPARE(digits.remove(u'.').toLongLong(), bitsOf(it->toDouble()));
        ++compared;
    }
    QVERIFY(compared > 10);
}

void TakeOverTypesTest::wholeNumbersAsOtherNumbers()
{
    LegacySample sample(u"atolye.mdb"_s);
    const std::unique_ptr<Database> plain = sample.takenOver();
    const auto countries = columnByKey(*plain, u"Firma"_s, u"Firkod"_s, u"UlkeID"_s);
    const auto rates = columnByKey(*plain, u"Ayar"_s, u"Milyem"_s, u"Yogunluk"_s);
    const auto places = columnByKey(*plain, u"UrunTipi"_s, u"TipID"_s, u"Sirano"_s);
    sample.retype(sample.definitionOf({u"Firkod"_s, u"UlkeID"_s}), u"UlkeID"_s, Single);
    sample.retype(sample.definitionOf({u"Milyem"_s, u"Yogunluk"_s}), u"Yogunluk"_s, Moment);
    sample.retype(sample.definitionOf({u"TipID"_s, u"Sirano"_s}), u"Sirano"_s, Byte, 1);

    const std::unique_ptr<Database> db = sample.takenOver();
    const auto singles = columnByKey(*db, u"Firma"_s, u"Firkod"_s, u"UlkeID"_s);
    for (auto it = countries.begin(); it != countries.end(); ++it) {
        QCOMPARE(singles.value(it.key()).isValid(), it->isValid());
        const auto bits = it->toInt();
        float expected = 0;
        std::memcpy(&expected, &bits, sizeof expected);
        QCOMPARE(singles.value(it.key()).toDouble(), double(expected));
    }
    const QDateTime origin(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
    const auto moments = columnByKey(*db, u"Ayar"_s, u"Milyem"_s, u"Yogunluk"_s);
    for (auto it = rates.begin(); it != rates.end(); ++it)
        QCOMPARE(moments.value(it.key()).toDateTime(),
                 origin.addSecs(qRound64(it->toDouble() * 86400)));
    const auto bytes = columnByKey(*db, u"UrunTipi"_s, u"TipID"_s, u"Sirano"_s);
    for (auto it = places.begin(); it != places.end(); ++it)
        QCOMPARE(bytes.value(it.key()).toInt(), it->toInt() & 0xff);
}

void TakeOverTypesTest::textsAsBytes()
{
    LegacySample sample(u"atolye.mdb"_s);
    const std::unique_ptr<Database> plain = sample.takenOver();
    const auto names = columnByKey(*plain, u"Ulkeler"_s, u"ID"_s, u"ulke_ADI"_s);
    const auto notes = columnByKey(*plain, u"SiparisB"_s, u"Sipnum"_s, u"Aciklama"_s);
    sample.retype(sample.definitionOf({u"ulke_ADI"_s}), u"ulke_ADI"_s, Binary);
    sample.retype(sample.definitionOf({u"SipTrh"_s, u"TesTrh"_s}), u"Aciklama"_s, Ole);
    const std::unique_ptr<Database> db = sample.takenOver();

    // One byte a letter behind a mark, or two without one.
    const auto decoded = [](const QByteArray &bytes) {
        if (bytes.startsWith("\xff\xfe") && !bytes.contains('\0'))
            return QString::fromLatin1(bytes.mid(2));
        return QString::fromUtf16(reinterpret_cast<const char16_t *>(bytes.constData()),
                                  bytes.size() / 2);
    };
    const auto check = [&](const auto &texts, const auto &blobs, qsizetype longest) {
        qsizetype most = 0;
        for (auto it = texts.begin(); it != texts.end(); ++it) {
            QCOMPARE(blobs.value(it.key()).isValid(), it->isValid());
            const QByteArray bytes = blobs.value(it.key()).toByteArray();
            if (!bytes.contains('\0') || !bytes.startsWith("\xff\xfe"))
                QCOMPARE(decoded(bytes), it->toString());
            most = qMax(most, bytes.size());
        }
        QVERIFY(most >= longest);
    };
    check(names, columnByKey(*db, u"Ulkeler"_s, u"ID"_s, u"ulke_ADI"_s), 6);
    check(notes, columnByKey(*db, u"SiparisB"_s, u"Sipnum"_s, u"Aciklama"_s), 500);
}

void TakeOverTypesTest::nullAndEmptyTextDiffer()
{
    LegacySample sample(u"atolye.mdb"_s);
    const std::unique_ptr<Database> db = sample.takenOver();
    const auto count = [&](const QString &condition) {
        Recordset rows = db->query(u"Select Count(*) From SiparisD Where "_s + condition);
        return rows.next() ? rows.value(0).toInt() : -1;
    };
    // The file's own marks tell which rows have no text at all.
    const qsizetype lines = sample.definitionOf({u"Dotosayi"_s, u"SipSatir"_s});
    const int column = int(sample.number(sample.columnOf(lines, u"SipAck"_s) + 5, 1));
    int nulls = 0;
    for (const LegacySample::Row &row : sample.places(lines)) {
        constexpr quint16 moved = 0x4000;
        if ((sample.marksOf(row) & moved) != 0)
            continue; // a pointer or a deleted row; its new place is one of the others
        const qsizetype end = sample.endOf(row);
        const qsizetype fields = qsizetype(sample.number(row.start, 2));
        const qsizetype bits = end - (fields + 7) / 8;
        const bool isSet = (sample.number(bits + column / 8, 1) >> column % 8 & 1) != 0;
        nulls += isSet ? 0 : 1;
    }
    QVERIFY(nulls > 0);
    QCOMPARE(count(u"SipAck Is Null"_s), nulls);
    QVERIFY(count(u"SipAck = ''"_s) > 0);
}

void TakeOverTypesTest::whatTheEngineCannotKeepRefuses()
{
    LegacySample sample(u"atolye.mdb"_s);
    const qsizetype stones = sample.definitionOf({u"TasFiyati"_s, u"TasKatsayi"_s});
    const LegacySample::Row row = sample.places(stones).first();
    const qsizetype price = sample.fixedField(row, stones, u"TasFiyati"_s);
    sample.setNumber(price, 4, 0);
    sample.setNumber(price + 4, 4, 0x7ff80000); // not a number
    QVERIFY(sample.refusal().contains(u"\"Tas\""_s));
    QCOMPARE(sample.leftBehind(), QStringList());
    sample.setNumber(price + 4, 4, 0x7ff00000); // infinity can be kept
    QCOMPARE(sample.refusal(), QString());
}

KUYUM_TEST(TakeOverTypesTest)

} // namespace kuyum

#include "TakeOverTypesTest.moc"
