#include "Giris_Siparis.h"

#include "Dates.h"
#include "Guarded.h"
#include "KeptLinesNote.h"
#include "ModelEntry.h"
#include "Numbers.h"
#include "OrderCode.h"
#include "Oturum.h"
#include "SiparisModel.h"
#include "ui_Giris_Siparis.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace kuyum {

/// The order entry screen: finding orders, customers and pictures.

/// A number that was typed, or a slip's bar code.
void Giris_Siparis::numberEntered()
{
    const OrderNumberEntry entry = readOrderNumber(m_ui->Sipnum->text());
    if (!entry.refusal.isEmpty()) {
        m_context.messages.say(this, entry.refusal, MessageIcon::Exclamation);
        m_ui->Sipnum->selectAll();
        return;
    }
    if (readOrderCode(m_ui->Sipnum->text()))
        m_ui->Sipnum->setText(plainNumber(entry.number));
    SiparisBul(entry.number);
}

void Giris_Siparis::SiparisBul(double number)
{
    const bool possible =
        number >= 1 && number <= std::numeric_limits<qint32>::max() && std::floor(number) == number;
    std::optional<Siparis> found;
    m_loaded = {};
    if (possible) {
        m_loaded = m_store.oku(qint32(number));
        found = m_store.SiparisBul(qint32(number));
    }
    m_notice = found || number == 0 ? QString() : whyNotSaved(number);
    if (found)
        SiparisDoldur(*found);
    TusAC();
    showWarning(m_notice);
    m_ui->Rapor->goTo(0, SiparisModel::modelColumn);
    m_ui->FirAdi->setFocus();
    m_ui->FirAdi->selectAll();
}

/// Why an order cannot be saved under this number, told before it is typed.
QString Giris_Siparis::whyNotSaved(double number) const
{
    const std::optional<qint32> customer = m_store.headerCustomer(number);
    if (customer) {
        return u"%1 nolu siparişin müşterisi (kod %2) tanımlı değil. Sipariş, müşteri "
               "tanımlandıktan sonra açılabilir; buradan kaydedilemez."_s.arg(
                   plainNumber(number), QString::number(*customer));
    }
    return u"%1 nolu sipariş yok; bu numarayla kaydedilemez. Yeni sipariş için numara boş "
           "bırakılır."_s.arg(plainNumber(number));
}

void Giris_Siparis::pickOrder()
{
    const LookupAnswer answer = m_context.openList(this, {u"Siparis Listesi"_s, {}});
    if (answer.SecilenNo <= 0)
        return;
    m_ui->Sipnum->setText(QString::number(answer.SecilenNo));
    SiparisBul(answer.SecilenNo);
}

void Giris_Siparis::SiparisDoldur(const Siparis &siparis)
{
    m_stored = siparis.Sipnum;
    m_ui->Sipnum->setText(QString::number(siparis.Sipnum));
    showCustomer({siparis.Firkod, siparis.FirAdi, siparis.KisaAD, {}});
    // An old order without a date must not get today's by being saved.
    const auto dateOrNone = [](QDate date) { return date.isValid() ? date : noDate(); };
    m_ui->TesTrh->setDate(dateOrNone(siparis.TesTrh));
    m_ui->SipTrh->setDate(dateOrNone(siparis.SipTrh));
    m_ui->Ayar->setText(siparis.Ayar == 0 ? QString() : plainNumber(siparis.Ayar));
    m_ui->Patent->setText(siparis.Patent);
    m_ui->Aciklama->setText(siparis.Aciklama);
    m_ui->Aciklama->setCursorPosition(0);
    m_keptLines = siparis.keptLines;
    if (m_model->tipler() != siparis.tipler)
        m_model->setTypes(siparis.tipler);
    m_model->fill(siparis.satirlar);
    tellKeptLines();
}

/// Tells of the order's lines that have no place in the grid.
void Giris_Siparis::tellKeptLines()
{
    const QString note = keptLinesNote(
        collect(), [this](const QString &model) { return m_lookups.hasModel(model); });
    m_ui->keptLinesNote->setText(note);
    m_ui->keptLinesNote->setVisible(!note.isEmpty());
}

// The customer

void Giris_Siparis::FirmaBul()
{
    const QString text = m_ui->FirAdi->text().trimmed();
    // Passing by a customer that was found before does not take him anew.
    if (m_customer.Firkod != 0 && text == m_customer.FirAdi.trimmed()) {
        m_ui->TesTrh->setFocus(Qt::TabFocusReason);
        return;
    }
    double code = leadingNumber(text);
    if (!isNumeric(text)) {
        const LookupAnswer answer = m_context.openList(this, {u"Firma Listesi"_s, text});
        if (answer.SecilenNo < 1)
            return;
        code = answer.SecilenNo;
    }
    const std::optional<OrderCustomer> firma = m_lookups.firma(code);
    if (!firma) {
        m_context.messages.say(this, u"KAYIT BULUNAMADI ...!"_s, MessageIcon::Exclamation);
        m_ui->FirAdi->selectAll();
        return;
    }
    // The customer's note is the order's default one. It goes in as if typed,
    // so that undo brings back what it replaces; a customer without a note
    // replaces only the note of the customer before.
    if (!firma->Aciklama.isEmpty() || m_ui->Aciklama->text() == m_customer.Aciklama) {
        m_ui->Aciklama->selectAll();
        m_ui->Aciklama->insert(firma->Aciklama);
    }
    showCustomer(*firma);
    m_ui->TesTrh->setFocus(Qt::TabFocusReason);
}

void Giris_Siparis::showCustomer(const OrderCustomer &firma)
{
    m_customer = firma;
    m_ui->FirAdi->setText(firma.FirAdi);
    m_ui->Firkod->setText(QString::number(firma.Firkod));
    m_ui->KisaAD->setText(firma.KisaAD);
    m_ui->KisaAD->setCursorPosition(0);
}

/// A name that is being typed is no customer yet, and must not be saved under
/// the code of the one before.
void Giris_Siparis::customerTyped()
{
    const bool same = m_customer.Firkod != 0 && m_ui->FirAdi->text() == m_customer.FirAdi;
    m_ui->Firkod->setText(same ? QString::number(m_customer.Firkod) : QString());
    m_ui->KisaAD->setText(same ? m_customer.KisaAD : QString());
}

// The grid

void Giris_Siparis::Gridbosalt()
{
    m_model->Gridbosalt();
}

void Giris_Siparis::removeRow(int row)
{
    const SiparisSatiri &satir = m_model->rowAt(row);
    if (satir.model.isEmpty())
        return;
    if (satir.hasBegun()) {
        m_context.messages.say(this, u"HAREKET GORMUŞ SİPARİŞ SATIRI SİLİNEMEZ..."_s,
                               MessageIcon::Critical, u"HATA"_s);
        return;
    }
    if (!m_context.messages.ask(this, satir.model + u" LİSTEDEN ÇIKARILACAK..."_s,
                                MessageIcon::Exclamation, {}, MessageAnswer::No))
        return;
    const int column = m_ui->Rapor->currentIndex().column();
    if (m_model->rowCount() > 1) {
        m_model->removeRow(row);
        m_ui->Rapor->goTo(std::min(row, m_model->rowCount() - 1), column);
    } else {
        m_model->clearRow(row);
        m_ui->Rapor->goTo(row, SiparisModel::modelColumn);
    }
    tellKeptLines();
}

void Giris_Siparis::setQuickEntry(bool on)
{
    m_modelEntry->setQuickEntry(on);
    m_ui->SabitRenk->setText({});
    m_modelEntry->setFixedColour({});
    if (on)
        pickFixedColour();
    if (on && isEditing()) {
        m_ui->Rapor->goToEmptyRow();
        m_ui->Rapor->setFocus();
    }
}

void Giris_Siparis::pickFixedColour()
{
    const LookupAnswer answer = m_context.openList(this, {u"Renk Listesi"_s, {}});
    if (answer.Secilen.isEmpty())
        return;
    m_ui->SabitRenk->setText(answer.Secilen);
    m_modelEntry->setFixedColour(answer.Secilen);
}

void Giris_Siparis::ResimGoster(int row, PictureError onError)
{
    const SiparisSatiri &satir = m_model->rowAt(row);
    // A new, still empty row leaves the picture of the model before.
    if (satir.model.isEmpty())
        return;
    QString error;
    try {
        const QStringList types = satir.orderedTypes(m_model->tipler());
        m_ui->Resim->showFile(m_lookups.picturePath(satir.model, types));
        error = m_ui->Resim->error();
    } catch (const std::exception &failure) {
        error = QString::fromUtf8(failure.what());
    }
    if (error.isEmpty() || onError == PictureError::Skip)
        return;
    // In quick entry a box would take the next scan's digits.
    if (m_ui->Check_HizliGiris->isChecked())
        showWarning(error);
    else
        m_context.messages.say(this, error);
}

void Giris_Siparis::showWarning(const QString &text)
{
    m_ui->warningLine->setText(text);
    m_ui->warningLine->setVisible(!text.isEmpty());
}

} // namespace kuyum
