#include "DemoMasterData.h"

#include "Database.h"
#include "Demo.h"
#include "DemoRow.h"
#include "Dice.h"
#include "Numbers.h"
#include "Passwords.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr std::array<DemoType, demoTypeCount> types = {{
    {u"Yüzük", u"YZK", 0.18, 0.65},
    {u"Kolye", u"KLY", 0.35, 1.20},
    {u"Küpe", u"KPE", 0.12, 0.48},
    {u"Bilezik", u"BLZ", 0.90, 2.40},
    {u"Bileklik", u"BLK", 0.40, 1.10},
    {u"Alyans", u"ALY", 0.22, 0.55},
    {u"Set", u"SET", 1.10, 2.80},
    {u"Broş", u"BRS", 0.25, 0.80},
}};
/// The place of each of them on the screens and slips.
constexpr std::array<int, demoTypeCount> typeOrder = {1, 4, 2, 5, 6, 3, 8, 7};

constexpr std::array<const char16_t *, 12> colours = {u"SR", u"BY", u"PM", u"KR", u"SB", u"SK",
                                                      u"BK", u"RD", u"YŞ", u"İN", u"ÜR", u"MT"};

struct Karat
{
    int fineness;
    double density; ///< grams of gold that come of one gram of wax
};
constexpr std::array<Karat, 5> karats = {
    {{333, 10.975}, {375, 11.325}, {585, 13.075}, {750, 15.425}, {916, 17.825}}};

void fillTypes(Database &company)
{
    Recordset rows = company.table(u"UrunTipi"_s);
    for (int i = 0; i < demoTypeCount; ++i) {
        addRow(rows, {{u"UrunTipi", QString::fromUtf16(types[i].name)},
                      {u"KisaAD", QString::fromUtf16(types[i].shortName)},
                      {u"Sirano", typeOrder[i]},
                      {u"tiptarih", demoDay().addYears(-6).addDays(i)}});
    }
}

void fillColoursAndKarats(Database &company)
{
    Recordset colourRows = company.table(u"Renkler"_s);
    for (int i = 0; i < int(colours.size()); ++i)
        addRow(colourRows, {{u"RenkNo", QString::fromUtf16(colours[i])}, {u"Renksira", i + 1}});
    Recordset karatRows = company.table(u"Ayar"_s);
    for (const Karat &karat : karats)
        addRow(karatRows, {{u"Milyem", karat.fineness}, {u"Yogunluk", karat.density}});
}

void fillStatuses(Database &company)
{
    Recordset orderStatuses = company.table(u"Durum1"_s);
    for (const QString &status : {u"SİPARİŞ ALINDI"_s, u"ONAYLANDI"_s, u"ÜRETİMDE"_s, u"HAZIR"_s,
                                  u"TESLİM EDİLDİ"_s, u"İPTAL"_s})
        addRow(orderStatuses, {{u"d1_tanim", status}});
    Recordset stages = company.table(u"Durum2"_s);
    for (const QString &stage :
         {u"MUM"_s, u"DÖKÜM"_s, u"TESVİYE"_s, u"MIHLAMA"_s, u"CİLA"_s, u"KALİTE KONTROL"_s})
        addRow(stages, {{u"d2_tanim", stage}});
}

void fillMenu(Database &company)
{
    const QMap<int, QString> captions = {
        {0, u"Taş Tanımları"_s},   {1, u"Kalıp Tanımları"_s},  {2, u"Ürün Tipi Tanımları"_s},
        {3, u"Model Tanımları"_s}, {4, u"Firma Tanımları"_s},  {5, u"Döviz Kurları"_s},
        {6, u"Barkod Etiketi"_s},  {7, u"Sipariş Girişi"_s},   {8, u"Ayar Tanımları"_s},
        {9, u"Renk Tanımları"_s},  {10, u"Katalog"_s},         {11, u"Sipariş Raporları"_s},
        {12, u"Üretim Raporu"_s},  {13, u"Sipariş Kontrol"_s}, {17, u"Kullanıcı Tanımları"_s},
        {18, u"Parametreler"_s},   {19, u"Veri Yenileme"_s},
    };
    Recordset rows = company.table(u"Menuler"_s);
    for (auto caption = captions.begin(); caption != captions.end(); ++caption)
        addRow(rows, {{u"m_ID", caption.key()}, {u"m_Adi", caption.value()}});
}

struct Stone
{
    const char16_t *code;
    double price; ///< of one gram
    const char16_t *currency;
};
constexpr std::array<Stone, 12> stoneKinds = {{{u"PRL", 2150, u"USD"},
                                               {u"ZRK", 1.40, u"USD"},
                                               {u"ZMR", 940, u"USD"},
                                               {u"YKT", 1020, u"USD"},
                                               {u"SFR", 870, u"EUR"},
                                               {u"AMT", 14.50, u"USD"},
                                               {u"TPZ", 18.20, u"EUR"},
                                               {u"İNC", 42, u"USD"},
                                               {u"GRN", 16.75, u"USD"},
                                               {u"OPL", 55, u"EUR"},
                                               {u"ŞTN", 210, u"TL"},
                                               {u"MERC", 38.50, u"EUR"}}};

/// Every kind in rising sizes; when these are used up, in the next cut.
void fillStones(Database &company, int count)
{
    constexpr int sizes = 25;
    const QStringList cuts = {{}, u" K"_s, u" O"_s, u" D"_s, u" M"_s, u" B"_s};
    Dice dice(21);
    Recordset rows = company.table(u"Tas"_s);
    for (int i = 0; i < count; ++i) {
        const Stone &kind = stoneKinds[i % int(stoneKinds.size())];
        const int place = i / int(stoneKinds.size());
        const int cut = place / sizes;
        const double millimetres = 1 + 0.25 * (place % sizes);
        QString code = QString::fromUtf16(kind.code) + u'-' + formatNumber(millimetres, u"0.00") +
                       cuts[cut % cuts.size()];
        if (cut >= cuts.size())
            code += sqlNumber(cut / int(cuts.size())).trimmed();
        const double growth = 1 + 0.15 * (place % sizes) + 0.05 * dice.below(4);
        addRow(rows, {{u"Taskodu", code},
                      {u"TasFiyati", roundDecimal(kind.price * growth, 2)},
                      {u"TasBirimi", QString::fromUtf16(kind.currency)},
                      {u"TasKatsayi", roundDecimal(0.00075 * std::pow(millimetres, 3), 6)},
                      {u"tastarih", demoDay().addDays(-dice.between(30, 2000))}});
    }
}

QStringList fillMolds(Database &company, int count)
{
    const QStringList sizes = {u"İnce"_s,   u"Kalın"_s, u"Küçük"_s, u"Büyük"_s,
                               u"Geniş"_s,  u"Çift"_s,  u"Oval"_s,  u"Burgulu"_s,
                               u"Ajurlu"_s, u"Düz"_s,   u"Köşeli"_s};
    const QStringList parts = {u"yüzük kolu"_s,    u"taş yuvası"_s,     u"küpe çivisi"_s,
                               u"kilit parçası"_s, u"zincir halkası"_s, u"bilezik halkası"_s,
                               u"gül yaprağı"_s,   u"çiçek göbeği"_s,   u"damla ucu"_s,
                               u"broş iğnesi"_s,   u"kolye askısı"_s,   u"alyans gövdesi"_s};
    const QStringList prefixes = {u"KLP"_s, u"DÖK"_s, u"ŞN"_s, u"ÇB"_s, u"K"_s, u"İĞ"_s};
    Dice dice(22);
    QStringList codes;
    Recordset rows = company.table(u"Kalip"_s);
    for (int i = 0; i < count; ++i) {
        const QString code =
            dice.oneOf(prefixes) + u'-' + QString::number(i + 1).rightJustified(3, u'0');
        codes.append(code);
        const QString &size = dice.oneOf(sizes);
        const QString &part = dice.oneOf(parts);
        addRow(rows, {{u"KalipKodu", code},
                      {u"KalipAck", size + u' ' + part},
                      {u"KalipDur", dice.chance(80) ? u"Icerde"_s : u"Disarda"_s},
                      {u"kaliptarih", demoDay().addDays(-dice.between(20, 2200))}});
    }
    return codes;
}

} // namespace

const DemoType &demoType(int index)
{
    return types[index];
}

QStringList demoColours()
{
    QStringList result;
    for (const char16_t *colour : colours)
        result.append(QString::fromUtf16(colour));
    return result;
}

QList<int> demoKarats()
{
    QList<int> result;
    for (const Karat &karat : karats)
        result.append(karat.fineness);
    return result;
}

void fillSettings(Database &company)
{
    Recordset settings = company.table(u"XXX"_s);
    addRow(settings, {{u"TeraziTip", 1},
                      {u"ComportID", 1},
                      {u"comportST", u"9600,N,8,1"_s},
                      {u"YaziciAdi", u"Zebra TLP2844"_s},
                      {u"sabitayar", 585}});
    fillTypes(company);
    fillColoursAndKarats(company);
    fillStatuses(company);
    fillMenu(company);
}

void fillRates(Database &company)
{
    struct Currency
    {
        QString code;
        int decimals;
        double rate; ///< in TL, thirty days before the demo day
    };
    const QList<Currency> currencies = {{u"USD"_s, 4, 44.1250},
                                        {u"EUR"_s, 4, 51.3800},
                                        {u"GBP"_s, 4, 58.7400},
                                        {u"HAS"_s, 2, 6120.00},
                                        {u"TL"_s, 0, 1}};
    Recordset currencyRows = company.table(u"DovizB"_s);
    for (int i = 0; i < currencies.size(); ++i) {
        const bool local = currencies[i].code == u"TL";
        addRow(currencyRows, {{u"Dovcinsi", currencies[i].code},
                              {u"DovUlke", local ? 1 : 0},
                              {u"Sbak", currencies[i].code == u"GBP" ? 0 : 1},
                              {u"Esira", i + 1}});
    }

    Dice dice(23);
    Recordset rateRows = company.table(u"DovizD"_s);
    QList<Currency> today = currencies;
    for (int daysAgo = 30; daysAgo >= 0; --daysAgo) {
        for (Currency &currency : today) {
            const bool local = currency.code == u"TL";
            if (!local)
                currency.rate *= 1 + dice.between(-40, 60) / 10000.0;
            const double selling = roundDecimal(currency.rate, currency.decimals);
            const double buying = roundDecimal(currency.rate * 0.995, currency.decimals);
            addRow(rateRows, {{u"Tarih", demoDay().addDays(-daysAgo)},
                              {u"Dovcinsi", currency.code},
                              {u"Kur", selling},
                              {u"aliskur", local ? 1 : buying}});
        }
    }
}

void fillUsers(Database &company)
{
    struct User
    {
        QString name;
        QString password;
        int extraRight;
    };
    const QList<User> users = {{u"Admin"_s, u"1234"_s, 1}, {u"Çiğdem Işık"_s, u"inci2026"_s, 0}};
    Recordset userRows = company.table(u"Users"_s);
    for (int i = 0; i < users.size(); ++i) {
        addRow(userRows, {{u"User_ID", i + 1},
                          {u"User_Name", users[i].name},
                          {u"user_pass", Sifrele(users[i].password)},
                          {u"user_level", 0},
                          {u"user_lastentry", demoDay()},
                          {u"user_lastsistem", demoDay()},
                          {u"user_ambkod", 0},
                          {u"User_Sil", 0},
                          {u"user_yetki1", users[i].extraRight}});
    }
    Recordset rights = company.table(u"MenuKisit"_s);
    for (const int item : {3, 4, 5, 7, 10, 11, 13})
        addRow(rights, {{u"MK_userid", 2}, {u"MK_menuid", item}});
}

struct DemoLabelField
{
    int label;
    QString text;
    double points;
    int left; ///< in half points, as are top and the label types' places
    int top;
};

void fillLabelFields(Database &company)
{
    const DemoLabelField fields[] = {
        {1, u"%KOD%"_s, 7, 270, 50},       {1, u"%MIKTAR% gr"_s, 7, 450, 10},
        {1, u"%AYAR% ayar"_s, 7, 450, 30}, {1, u"%FRM%"_s, 6, 450, 50},
        {2, u"%KOD%"_s, 8, 300, 10},       {2, u"%AYAR% ayar"_s, 7, 300, 30},
        {2, u"%MIKTAR% gr"_s, 7, 400, 30}, {2, u"%ALAN1%"_s, 7, 300, 50},
        {2, u"%TFYT% TL"_s, 8, 450, 50},
    };
    Recordset rows = company.table(u"BarkodtipAlanlar"_s);
    int number = 0;
    for (const DemoLabelField &field : fields) {
        addRow(rows, {{u"btipno", field.label},
                      {u"alanno", ++number},
                      {u"alanadi", field.text},
                      {u"Check", true},
                      {u"FontName", u"Courier New Tur"_s},
                      {u"boyut", field.points},
                      {u"Bold", true},
                      {u"pic_Top", field.top},
                      {u"pic_Left", field.left}});
    }
}

void fillLabelTypes(Database &company)
{
    auto addType = [labels = company.table(u"Barkodtip"_s)](int number, const QString &name,
                                                            int left, bool special) mutable {
        addRow(labels, {{u"BarkodTip_ID", number},
                        {u"BarkodTip_Ad", name},
                        {u"BarkodTip_OzelUrun", special},
                        {u"pBarkod_Top", 10},
                        {u"pBarkod_Left", left},
                        {u"BasSatiri", 1},
                        {u"BasSutunu", 1},
                        {u"pic_Top", special ? 5 : 0},
                        {u"pic_Left", special ? 20 : 0}});
    };
    addType(1, u"Küçük Etiket"_s, 260, false);
    addType(2, u"Özel Ürün Etiketi"_s, 130, true);
    fillLabelFields(company);
    Recordset special = company.table(u"Barkodtipozel"_s);
    addRow(special, {{u"btipno", 2},
                     {u"BarkodKod_Kod", u"ÖZEL-1"_s},
                     {u"BarkodKod_Isim", u"Özel sipariş yüzüğü"_s}});
    addRow(special, {{u"btipno", 2},
                     {u"BarkodKod_Kod", u"ÖZEL-2"_s},
                     {u"BarkodKod_Isim", u"İsim yazılı kolye"_s}});
}

DemoMaterials fillMaterials(Database &company, int scale)
{
    DemoMaterials materials;
    materials.stones = 60 * scale;
    fillStones(company, materials.stones);
    materials.moldCodes = fillMolds(company, 120 * scale);
    return materials;
}

} // namespace kuyum
