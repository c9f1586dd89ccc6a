#include "LookupLists.h"

#include "Dates.h"
#include "Numbers.h"
#include "SqlText.h"

#include <limits>
#include <QDateTime>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

using Value = LookupResult::Value;

bool isBlank(const QString &filter)
{
    return filter.trimmed().isEmpty();
}

QString tasSql(const QString &filter)
{
    if (isBlank(filter))
        return u"Select TasID, Taskodu, TasFiyati, TasBirimi From Tas Order by Taskodu;"_s;
    return u"Select TasId, Taskodu, TasFiyati, TasBirimi From Tas Where Taskodu >= "_s +
           sqlText(filter) + u" Order by Taskodu;"_s;
}

QString kalipSql(const QString &filter)
{
    if (isBlank(filter))
        return u"Select KalipID, Kalipkodu, KalipAck From Kalip Order by Kalipkodu;"_s;
    return u"Select KalipID, Kalipkodu, KalipAck From Kalip Where Kalipkodu >= "_s +
           sqlText(filter) + u" Order by Kalipkodu;"_s;
}

QString tipSql(const QString &)
{
    return u"Select TipID, Uruntipi, KisaAD From Uruntipi Order by TipID;"_s;
}

QString modelCondition(const QString &word, const QString &filter)
{
    return isBlank(filter) ? QString() : word + u" Model >= "_s + sqlText(filter) + u' ';
}

QString modelSql(const QString &filter)
{
    return u"Select Model, M_Uruntip, UrunTipi, Kisaad From Model, UrunTipi "
           "Where Model.M_uruntip = Uruntipi.TipID "_s +
           modelCondition(u"and"_s, filter) +
           u"Group by Model, M_Uruntip, uruntipi, Kisaad Order by Model, M_Uruntip, Uruntipi;"_s;
}

QString siparisModelSql(const QString &filter)
{
    return u"Select Model, M_Uruntip, UrunTipi, Kisaad "
           "FROM Model INNER JOIN UrunTipi ON Model.M_Uruntip = UrunTipi.TipID "_s +
           modelCondition(u"Where"_s, filter) +
           u"Group by Model, M_uruntip, Uruntipi, Kisaad Order by Model;"_s;
}

/// Both model lists: grouped by what an index holds in that order.
QString streamedModelSql(const QString &filter)
{
    return u"Select Model, M_Uruntip, Min(UrunTipi.UrunTipi) as UrunTipi, Min(Kisaad) as KisaAD "
           "FROM Model INNER JOIN UrunTipi ON Model.M_Uruntip = UrunTipi.TipID "_s +
           modelCondition(u"Where"_s, filter) +
           u"Group by Model, M_Uruntip Order by Model, M_Uruntip;"_s;
}

QString firmaSql(const QString &filter)
{
    return u"Select Firkod as Kod, Firadi as Firma, Yetkili From Firma "_s +
           (isBlank(filter) ? u"Order by Firkod;"_s
                            : u"Where Firadi >= "_s + sqlText(filter) + u" Order by Firadi;"_s);
}

QString siparisSql(const QString &)
{
    return orderListSql();
}

QString renkSql(const QString &)
{
    return u"Select Renkno, RenkSira From Renkler Order by RenkNo;"_s;
}

QString milyemSql(const QString &)
{
    return u"Select Milyem, Yogunluk From Ayar Order by Milyem;"_s;
}

QString katalogSql(const QString &)
{
    return u"Select Katadi From Katalog Group by Katadi Order by Katadi;"_s;
}

QString kullaniciSql(const QString &)
{
    return u"Select User_ID, User_Name From Users Order by User_name;"_s;
}

/// " MODEL LİSTESİ" heads several lists that hold no models: the caption that
/// the users know.
QList<LookupList> makeLists()
{
    const QString usual = u" MODEL LİSTESİ"_s;
    return {
        {.name = u"Tas Listesi"_s,
         .caption = u" TAS LİSTESİ"_s,
         .widths = {1000_tw, 3000_tw, 1400_tw, 1200_tw},
         .results = {{Value::Id, 0}, {Value::Code, 1}},
         .sql = tasSql,
         .centredColumn = 1},
        {.name = u"Kalip Listesi"_s,
         .caption = u" KALIP LİSTESİ"_s,
         .widths = {1000_tw, 5000_tw, 5000_tw},
         .results = {{Value::Id, 0}, {Value::Code, 1}},
         .sql = kalipSql,
         .picture = LookupPicture::Mold},
        {.name = u"Tip Listesi"_s,
         .caption = u" TIP LİSTESİ"_s,
         .widths = {1000_tw, 3000_tw, 1000_tw},
         .results = {{Value::Id, 0}},
         .sql = tipSql},
        {.name = u"Model Listesi"_s,
         .caption = usual,
         .widths = {5000_tw, 0_tw, 5000_tw, 0_tw},
         .results = {{Value::Code, 0}, {Value::Type, 1}},
         .sql = modelSql,
         .streamedSql = streamedModelSql,
         .picture = LookupPicture::Model},
        {.name = u"Firma Listesi"_s,
         .caption = usual,
         .widths = {1000_tw, 3000_tw, 3000_tw},
         .results = {{Value::Number, 0}, {Value::Code, 1}},
         .sql = firmaSql},
        {.name = u"Siparis Model Listesi"_s,
         .caption = u" SIPARIS MODEL LİSTESİ"_s,
         .widths = {3000_tw, 0_tw, 1400_tw, 0_tw},
         .results = {{Value::Code, 0}},
         .sql = siparisModelSql,
         .streamedSql = streamedModelSql,
         .picture = LookupPicture::Model},
        {.name = orderListName.toString(),
         .caption = usual,
         .hint = u"F11 : Firma Sıfırla  , F12 : Firma Kriteri"_s,
         .widths = {1400_tw, 1000_tw, 2200_tw, 1000_tw, 1800_tw, 4000_tw},
         .results = {{Value::Number, 1}},
         .sql = siparisSql},
        {.name = u"Kur Listesi"_s,
         .caption = u"KUR LISTESI"_s,
         .results = {{Value::Date, 0}},
         .source = LookupSource::Rates},
        {.name = u"Renk Listesi"_s,
         .caption = usual,
         .widths = {1600_tw, 1000_tw},
         .results = {{Value::Code, 0}},
         .sql = renkSql},
        {.name = u"Milyem Listesi"_s,
         .caption = usual,
         .widths = {1400_tw, 1400_tw},
         .results = {{Value::Code, 0}},
         .sql = milyemSql},
        {.name = u"Katalog Listesi"_s,
         .caption = u" KATALOG LİSTESİ"_s,
         .widths = {3500_tw},
         .results = {{Value::Code, 0}},
         .sql = katalogSql},
        {.name = u"Kullanıcı Listesi"_s,
         .caption = u" KULLANICI LİSTESİ"_s,
         .widths = {1200_tw, 3500_tw},
         .results = {{Value::Code, 0}},
         .sql = kullaniciSql},
        {.name = u"Yardim Bilgileri"_s,
         .caption = u" YARDIM BILGILERI"_s,
         .hint = u"Insert : Bilgi Ekle"_s,
         .widths = {11000_tw},
         .source = LookupSource::Help,
         .fontPoints = 10},
    };
}

template <typename Integer>
Integer wholeNumber(const QVariant &value)
{
    const double number = roundDecimal(value.toDouble(), 0);
    if (number < std::numeric_limits<Integer>::min() ||
        number > std::numeric_limits<Integer>::max()) {
        const QString text = u"Sayı çok büyük: "_s + lookupText(value);
        throw std::overflow_error(text.toStdString());
    }
    return Integer(number);
}

} // namespace

const QList<LookupList> &lookupLists()
{
    static const QList<LookupList> lists = makeLists();
    return lists;
}

const LookupList &lookupList(const QString &name)
{
    static const LookupList unknown = {};
    for (const LookupList &list : lookupLists()) {
        if (list.name == name)
            return list;
    }
    return unknown;
}

QString orderListSql(const QString &condition)
{
    return u"Select Siptrh, Sipnum, Firadi, Ayar, Patent, SiparisB.Aciklama "
           "From SiparisB, Firma Where Sipfirkod = Firkod "_s +
           condition + u"Order by Siptrh desc, Sipnum desc;"_s;
}

QString orderCondition(int column, const QVariantList &row)
{
    constexpr int customer = 2;
    constexpr int karat = 3;
    constexpr int hallmark = 4;
    if (column == karat)
        return u"and Ayar = "_s + sqlNumber(row[karat].toDouble()) + u' ';
    if (column == hallmark)
        return u"and Patent = "_s + sqlText(lookupText(row[hallmark])) + u' ';
    return u"and Firadi = "_s + sqlText(lookupText(row[customer])) + u' ';
}

LookupAnswer lookupAnswer(const LookupList &list, const QVariantList &row)
{
    LookupAnswer answer;
    for (const LookupResult &result : list.results) {
        const QVariant &value = row[result.column];
        switch (result.value) {
        case Value::Code:
            answer.Secilen = lookupText(value);
            break;
        case Value::Id:
            answer.SecilenID = lookupText(value);
            break;
        case Value::Type:
            answer.SecilenTip = wholeNumber<qint16>(value);
            break;
        case Value::Number:
            answer.SecilenNo = wholeNumber<qint32>(value);
            break;
        case Value::Date:
            answer.SecilenTarih = value.toDateTime().date();
            break;
        }
    }
    return answer;
}

QString lookupText(const QVariant &value, const QString &picture)
{
    if (value.typeId() == QMetaType::QDateTime)
        return formatDateTime(value.toDateTime());
    if (value.typeId() == QMetaType::Double) {
        const double number = value.toDouble();
        return picture.isEmpty() ? plainNumber(number) : formatNumber(number, picture);
    }
    return value.toString();
}

} // namespace kuyum
