#include "Giris_Siparis.h"

#include "DocumentViewer.h"
#include "Numbers.h"
#include "ReadingProgress.h"
#include "ui_Giris_Siparis.h"

#include <limits>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace kuyum {

/// The order entry screen: the slip and how the user wants it, and the reports.

namespace {

QString picturesKey()
{
    return u"fis/resimli"_s;
}

QString countKey()
{
    return u"fis/adet"_s;
}

QString identityKey()
{
    return u"fis/musteri"_s;
}

/// Clicks on LabelAdet go through them, and from the last one to the first.
constexpr int counts[] = {7, 12, 15};

int countAfter(int adet)
{
    for (const int count : counts) {
        if (count > adet)
            return count;
    }
    return counts[0];
}

} // namespace

void Giris_Siparis::readSlipChoice()
{
    const auto identity = MusteriKimligi(m_settings.value(identityKey()).toInt());
    m_ui->Check_Kod->setChecked(identity == MusteriKimligi::Kod);
    m_ui->Check_AD->setChecked(identity == MusteriKimligi::Ad);
    m_ui->Check_Resim->setChecked(m_settings.value(picturesKey(), 0).toInt() == 1);
    const int stored = m_settings.value(countKey()).toInt();
    showAdet(std::find(std::begin(counts), std::end(counts), stored) == std::end(counts) ? 12
                                                                                         : stored);
}

void Giris_Siparis::keepSlipChoice()
{
    const SlipChoice choice = slipChoice();
    m_settings.setValue(picturesKey(), choice.resimli ? 1 : 0);
    m_settings.setValue(countKey(), choice.adet);
    m_settings.setValue(identityKey(), int(choice.kimlik));
}

SlipChoice Giris_Siparis::slipChoice() const
{
    SlipChoice choice;
    if (m_ui->Check_AD->isChecked())
        choice.kimlik = MusteriKimligi::Ad;
    else if (m_ui->Check_Kod->isChecked())
        choice.kimlik = MusteriKimligi::Kod;
    choice.resimli = m_ui->Check_Resim->isChecked();
    choice.adet = m_ui->LabelAdet->text().toInt();
    return choice;
}

void Giris_Siparis::showAdet(int adet)
{
    m_ui->LabelAdet->setText(QString::number(adet));
    // A new text takes a button's key away.
    m_ui->LabelAdet->setShortcut(u"Ctrl+R"_s);
}

void Giris_Siparis::nextAdet()
{
    showAdet(countAfter(slipChoice().adet));
    keepSlipChoice();
}

void Giris_Siparis::print()
{
    if (m_ui->Rapor->finishEdit() && holdDates({m_ui->SipTrh, m_ui->TesTrh}, m_context.messages) &&
        karatFits())
        showSlip(collect());
}

void Giris_Siparis::showSlip(const Siparis &siparis)
{
    const std::optional<PrintDocument> slip =
        makeWithProgress(this, u"SİPARİŞ LİSTESİ"_s, [&](const PictureProgress &progress) {
            return orderSlip(m_context.oturum, siparis, slipChoice(), progress);
        });
    if (slip)
        m_context.viewer.show(this, *slip);
}

/// A report reads the order as it is stored; a new one has nothing to report yet.
void Giris_Siparis::openReport(const OrderReportOpener &report)
{
    const double number = leadingNumber(m_ui->Sipnum->text());
    if (number > 0 && number <= std::numeric_limits<qint32>::max())
        report(this, qint32(number), hasChanges());
    else
        showWarning(u"Sipariş kaydedildikten sonra raporu alınabilir."_s);
}

} // namespace kuyum
