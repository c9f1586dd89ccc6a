#include "Tanim_Uruntipi.h"

#include "Numbers.h"
#include "ui_Tanim_Uruntipi.h"

using namespace Qt::StringLiterals;

namespace kuyum {

Tanim_Uruntipi::Tanim_Uruntipi(const ScreenContext &context, QWidget *parent)
    : TanimEkrani(context, parent),
      m_store(context.oturum),
      m_ui(std::make_unique<Ui::Tanim_Uruntipi>())
{
    m_ui->setupUi(this);
    setUpForm({.table = u"UrunTipi"_s,
               .parts = partsOf(*m_ui),
               .keys = {m_ui->TipID},
               .values = {m_ui->UrunTipi, m_ui->KisaAD, m_ui->Sirano},
               .numbers = {m_ui->TipID, m_ui->Sirano}});
}

Tanim_Uruntipi::~Tanim_Uruntipi() = default;

double Tanim_Uruntipi::TipID() const
{
    return leadingNumber(m_ui->TipID->text());
}

bool Tanim_Uruntipi::hasKey() const
{
    return true; // no number is a key too: that of a new type
}

bool Tanim_Uruntipi::pickKey()
{
    const LookupAnswer answer = context().openList(this, {u"Tip Listesi"_s, m_ui->TipID->text()});
    if (leadingNumber(answer.SecilenID) == 0)
        return false;
    m_ui->TipID->setText(answer.SecilenID);
    return true;
}

TanimEkrani::Found Tanim_Uruntipi::readRow()
{
    if (TipID() == 0)
        return Found::NewRow;
    const std::optional<UrunTipiKaydi> tip = m_store.UrunTipiBul(TipID());
    if (!tip) {
        warn(u"ARANAN KAYIT BULUNAMADI ...!"_s);
        goTo(m_ui->TipID);
        return Found::Refused;
    }
    m_ui->TipID->setText(plainNumber(tip->TipID));
    m_ui->UrunTipi->setText(tip->UrunTipi);
    m_ui->KisaAD->setText(tip->KisaAD);
    showNumber(*m_ui->Sirano, tip->Sirano);
    return Found::Row;
}

bool Tanim_Uruntipi::mayWrite()
{
    for (const auto &[box, missing] :
         {std::pair{m_ui->UrunTipi, u"ÜRÜN TİPİ GİRİLMEK ZORUNDADIR..."_s},
          std::pair{m_ui->KisaAD, u"KISA AD GİRİLMEK ZORUNDADIR..."_s}}) {
        if (box->text().trimmed().isEmpty()) {
            warn(missing);
            goTo(box);
            return false;
        }
    }
    return TanimEkrani::mayWrite();
}

QList<RecordRows> Tanim_Uruntipi::recordRows() const
{
    return m_store.kayit(TipID());
}

bool Tanim_Uruntipi::writeRow()
{
    return store([&](LoadedRows &loaded) {
        m_store.save({TipID(), m_ui->UrunTipi->text(), m_ui->KisaAD->text(), number(*m_ui->Sirano)},
                     loaded);
    });
}

QString Tanim_Uruntipi::savedWhat() const
{
    return m_ui->UrunTipi->text() + u" ürün tipi"_s;
}

bool Tanim_Uruntipi::mayRemove()
{
    return ask(m_ui->TipID->text() + u" SİLİNECEK. ONAYLIYORMUSUNUZ.?"_s, {}, MessageAnswer::No);
}

bool Tanim_Uruntipi::removeRow()
{
    return store([this](LoadedRows &loaded) { m_store.remove(TipID(), loaded); });
}

} // namespace kuyum
