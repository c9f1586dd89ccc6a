#include "DemoCustomers.h"

#include "Database.h"
#include "DemoRow.h"
#include "Dice.h"
#include "TurkishText.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct Country
{
    QString name;
    QString dialling;
    QString pattern; ///< of a firm's name
    QStringList names;
    QStringList contacts;
};

/// The first is home; those without names have no customers yet.
QList<Country> countries()
{
    return {
        {u"Türkiye"_s, u"0"_s, {}, {}, {}},
        {u"Almanya"_s,
         u"+49"_s,
         u"Goldhaus %1 GmbH"_s,
         {u"Müller"_s, u"Schäfer"_s, u"Krüger"_s, u"Weiß"_s, u"Öztürk"_s},
         {u"Jürgen Krüger"_s, u"Anja Weiß"_s, u"Gökhan Öztürk"_s}},
        {u"Fransa"_s,
         u"+33"_s,
         u"Bijouterie %1"_s,
         {u"Lefèvre"_s, u"Moreau"_s, u"Côté d'Or"_s, u"Besançon"_s},
         {u"Hélène Moreau"_s, u"François Lefèvre"_s}},
        {u"İtalya"_s,
         u"+39"_s,
         u"Gioielli %1 S.r.l."_s,
         {u"Conti"_s, u"D'Angelo"_s, u"Arezzo"_s},
         {u"Giulia Conti"_s, u"Marco D'Angelo"_s}},
        {u"İngiltere"_s,
         u"+44"_s,
         u"%1 Jewellers Ltd."_s,
         {u"O'Hara"_s, u"Whitby"_s, u"Clarke"_s},
         {u"Sean O'Hara"_s, u"Emma Clarke"_s}},
        {u"Rusya"_s,
         u"+7"_s,
         u"Zoloto %1"_s,
         {u"Volga"_s, u"Kazan"_s, u"Ural"_s},
         {u"Olga Petrova"_s, u"İlyas Safin"_s}},
        {u"Birleşik Arap Emirlikleri"_s,
         u"+971"_s,
         u"%1 Gold LLC"_s,
         {u"Al Noor"_s, u"Deira"_s, u"Al Zahra"_s},
         {u"Khalid Nasser"_s, u"Layla Haddad"_s}},
        {u"Irak"_s,
         u"+964"_s,
         u"%1 Altın"_s,
         {u"Kerkük"_s, u"Dicle"_s, u"Erbil"_s},
         {u"Kemal Bayatlı"_s, u"Sara Aziz"_s}},
        {u"ABD"_s,
         u"+1"_s,
         u"%1 Fine Jewelry Inc."_s,
         {u"Bosphorus"_s, u"Hudson"_s, u"Aylin's"_s},
         {u"Aylin Carter"_s, u"David Hudson"_s}},
        {u"Avusturya"_s, {}, {}, {}, {}},
        {u"İspanya"_s, {}, {}, {}, {}},
        {u"Ürdün"_s, {}, {}, {}, {}},
        {u"Özbekistan"_s, {}, {}, {}, {}},
        {u"Çin"_s, {}, {}, {}, {}},
    };
}

/// Name number `place` out of first words, lines of business and, when all
/// pairs are used up, cities.
QString turkishFirm(int place)
{
    const QStringList words = {u"Altınçınar"_s, u"Işıltı"_s,     u"Öz Şahin"_s, u"Kapalıçarşı"_s,
                               u"Gümüşsuyu"_s,  u"Yıldız"_s,     u"İncili"_s,   u"Çağlayan"_s,
                               u"Ağaoğlu"_s,    u"Güneş"_s,      u"Ilgın"_s,    u"Şelale"_s,
                               u"Başak"_s,      u"Ayşe'nin"_s,   u"Hazar"_s,    u"Ürgüp"_s,
                               u"Dönmezler"_s,  u"Kızılırmak"_s, u"Sedef"_s,    u"Nişantaşı"_s,
                               u"Lâle"_s,       u"Ertuğrul"_s,   u"Çeyiz"_s,    u"Mercan"_s};
    const QStringList trades = {u"Kuyumculuk"_s,
                                u"Mücevherat"_s,
                                u"Altın ve Gümüş"_s,
                                u"Takı Tasarım"_s,
                                u"Sarrafiye"_s,
                                u"Hediyelik Eşya"_s,
                                u"Kuyumculuk San. ve Tic. Ltd. Şti."_s};
    const QStringList cities = {u"İstanbul"_s, u"İzmir"_s,     u"Ankara"_s,    u"Eskişehir"_s,
                                u"Muğla"_s,    u"Şanlıurfa"_s, u"Çanakkale"_s, u"Diyarbakır"_s,
                                u"Iğdır"_s,    u"Kütahya"_s,   u"Gaziantep"_s, u"Ordu"_s};
    const int word = place % int(words.size());
    const int round = place / int(words.size());
    // 24 words and 7 trades share no divisor, so the pairs come up one by one.
    QString firm = words[word] + u' ' + trades[place % int(trades.size())];
    const int shop = round / int(trades.size());
    if (shop > 0)
        firm += u" - "_s + cities[(shop - 1) % int(cities.size())];
    if (shop > int(cities.size()))
        firm += u' ' + QString::number((shop - 1) / int(cities.size()) + 1);
    return firm;
}

QString phone(Dice &dice, const Country &country, bool home)
{
    const QStringList areas = {u"212"_s, u"216"_s, u"232"_s, u"312"_s, u"222"_s, u"342"_s};
    const QString area = home ? country.dialling + dice.oneOf(areas)
                              : country.dialling + u' ' + QString::number(dice.between(20, 89));
    return area + u" 555 %1 %2"_s.arg(dice.below(100), 2, 10, QChar(u'0'))
                      .arg(dice.below(100), 2, 10, QChar(u'0'));
}

QString contact(Dice &dice)
{
    const QStringList names = {u"Gülşah"_s, u"Ömer"_s,  u"Işıl"_s, u"İbrahim"_s, u"Çağla"_s,
                               u"Şükrü"_s,  u"Hülya"_s, u"Uğur"_s, u"Nilgün"_s,  u"Yiğit"_s};
    const QStringList surnames = {u"Yılmaz"_s, u"Özdemir"_s, u"Çelik"_s, u"Şahin"_s, u"Aydın"_s,
                                  u"Kılıç"_s,  u"Doğan"_s,   u"Güneş"_s, u"İnce"_s,  u"Ağır"_s};
    const QString &name = dice.oneOf(names);
    const QString &surname = dice.oneOf(surnames);
    return name + u' ' + surname;
}

/// The first word in capitals, or two when the first is short.
QString shortName(const QString &firm)
{
    const QString first = firm.section(u' ', 0, 0);
    return turkishUpper(first.size() > 2 ? first : firm.section(u' ', 0, 1)).left(14);
}

} // namespace

int fillCustomers(Database &company, int scale)
{
    const QList<Country> all = countries();
    Recordset countryRows = company.table(u"Ulkeler"_s);
    for (const Country &country : all)
        addRow(countryRows, {{u"ulke_ADI", country.name}});

    const QStringList remarks = {{},
                                 u"Vadeli çalışır"_s,
                                 u"Perşembe günleri uğrar"_s,
                                 u"Kutulu ve etiketli teslim"_s,
                                 u"Peşin öder, iskonto ister"_s,
                                 {},
                                 u"Fatura adresi: 2. kat"_s};
    const int customers = 25 * scale;
    int domestic = 0;
    QList<int> abroad(all.size());
    Dice dice(31);
    Recordset rows = company.table(u"Firma"_s);
    for (int code = 1; code <= customers; ++code) {
        // Three out of ten customers are abroad.
        const int at = code % 10 < 3 ? 1 + (code / 10 * 3 + code % 10) % 8 : 0;
        const Country &country = all[at];
        QString firm;
        QString called;
        if (at == 0) {
            firm = called = turkishFirm(domestic++);
        } else {
            const int place = abroad[at]++;
            called = country.names[place % country.names.size()];
            firm = country.pattern.arg(called);
            if (place >= country.names.size())
                firm += u' ' + QString::number(place / country.names.size() + 1);
        }
        addRow(rows, {{u"Firkod", code},
                      {u"FirAdi", firm},
                      {u"Yetkili", at == 0 ? contact(dice) : dice.oneOf(country.contacts)},
                      {u"Telefon", phone(dice, country, at == 0)},
                      {u"Mail", u"siparis%1@ornek.example"_s.arg(code)},
                      {u"KisaAD", shortName(called)},
                      {u"Aciklama", dice.oneOf(remarks)},
                      {u"UlkeID", at + 1}});
    }
    return customers;
}

} // namespace kuyum
