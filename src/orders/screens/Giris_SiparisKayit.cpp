#include "Giris_Siparis.h"

#include "Dates.h"
#include "Guarded.h"
#include "NumberRange.h"
#include "Numbers.h"
#include "Oturum.h"
#include "SavedLine.h"
#include "SaveOver.h"
#include "SiparisModel.h"
#include "ui_Giris_Siparis.h"

using namespace Qt::StringLiterals;

namespace kuyum {

/// The order entry screen: checking, saving and removing an order.

Siparis Giris_Siparis::collect() const
{
    Siparis siparis;
    siparis.Sipnum = m_stored;
    siparis.SipTrh = m_ui->SipTrh->date();
    siparis.TesTrh = m_ui->TesTrh->date();
    siparis.Firkod = qint32(leadingNumber(m_ui->Firkod->text()));
    siparis.FirAdi = m_ui->FirAdi->text();
    siparis.KisaAD = m_ui->KisaAD->text();
    siparis.Ayar = leadingNumber(m_ui->Ayar->text());
    siparis.Patent = m_ui->Patent->text();
    siparis.Aciklama = m_ui->Aciklama->text();
    siparis.tipler = m_model->tipler();
    siparis.satirlar = m_model->satirlar();
    siparis.keptLines = m_keptLines;
    if (siparis.satirlar.size() > 1 && siparis.satirlar.last().model.trimmed().isEmpty())
        siparis.satirlar.removeLast();
    return siparis;
}

/// Whether a karat that was typed can be stored as it stands. If not, says so
/// and goes there. One that was stored by something else may stay.
bool Giris_Siparis::karatFits()
{
    const double Ayar = leadingNumber(m_ui->Ayar->text());
    if (Ayar == 0 || Ayar == m_opened.Ayar)
        return true;
    const TableDef header = m_context.oturum.Veritabani->tableDef(u"SiparisB"_s);
    const FieldDef *field = header.field(u"Ayar");
    const QString why = field == nullptr ? QString() : whyKaratDoesNotFit(*field, Ayar);
    if (why.isEmpty())
        return true;
    m_context.messages.say(this, u"Ayar "_s + why, MessageIcon::Exclamation, u"HATA"_s);
    m_ui->Ayar->setFocus(Qt::OtherFocusReason);
    m_ui->Ayar->selectAll();
    return false;
}

bool Giris_Siparis::check(const Siparis &siparis)
{
    if (!holdDates({m_ui->SipTrh, m_ui->TesTrh}, m_context.messages))
        return false;
    const auto defined = [this](const QString &model) { return m_lookups.hasModel(model); };
    const std::optional<OrderFault> fault = checkOrder(siparis, defined);
    const bool customerFirst = fault && fault->alan == OrderFault::Field::FirAdi;
    if (!customerFirst && !karatFits())
        return false;
    if (fault)
        showFault(*fault);
    return !fault;
}

void Giris_Siparis::showFault(const OrderFault &fault)
{
    using Field = OrderFault::Field;
    const std::map<Field, QWidget *> fields = {{Field::FirAdi, m_ui->FirAdi},
                                               {Field::Ayar, m_ui->Ayar},
                                               {Field::Patent, m_ui->Patent},
                                               {Field::Aciklama, m_ui->Aciklama},
                                               {Field::Grid, m_ui->Rapor}};
    m_context.messages.say(this, fault.text,
                           fault.critical ? MessageIcon::Critical : MessageIcon::Exclamation,
                           fault.title);
    if (fault.satir >= 0)
        m_ui->Rapor->goTo(fault.satir, fault.column);
    if (fault.alan != Field::None)
        fields.at(fault.alan)->setFocus(Qt::OtherFocusReason);
}

/// Whether the number on the screen is that of the order the screen holds, or
/// none. A save under any other number would replace an order never shown.
bool Giris_Siparis::holdsOwnNumber()
{
    const double number = leadingNumber(m_ui->Sipnum->text());
    if (number == m_stored)
        return true;
    const std::optional<qint32> customer = m_store.headerCustomer(number);
    m_context.messages.say(this,
                           customer
                               ? u"SİPARİŞİN MÜŞTERİSİ TANIMLI DEĞİL, SİPARİŞ KAYDEDİLEMEZ..."_s
                               : u"SİPARİŞ BAŞLIK KAYDINA ULAŞILAMIYOR..."_s,
                           MessageIcon::Critical, u"HATA"_s);
    return false;
}

void Giris_Siparis::showNumber(const Siparis &siparis)
{
    if (siparis.Sipnum == 0)
        return;
    m_stored = siparis.Sipnum;
    m_ui->Sipnum->setText(QString::number(siparis.Sipnum));
}

void Giris_Siparis::save()
{
    if (!m_ui->Rapor->finishEdit())
        return;
    Siparis siparis = collect();
    if (!check(siparis) || !holdsOwnNumber())
        return;
    bool stands = true;
    SaveEnd end = SaveEnd::Back;
    try {
        end = saveOver(m_context.messages, this, m_loaded,
                       [&](LoadedRows &loaded) { stands = m_store.save(siparis, loaded); });
    } catch (...) {
        // The header may be on disk already; the next save goes on from there.
        showNumber(siparis);
        throw;
    }
    showNumber(siparis);
    if (!stands)
        m_context.messages.say(this, u"SİPARİŞ BAŞLIK KAYDINA ULAŞILAMIYOR..."_s,
                               MessageIcon::Critical, u"HATA"_s);
    else if (end == SaveEnd::Done)
        afterSave(siparis, u"sipariş"_s);
    else if (end != SaveEnd::Back)
        takeStored();
}

/// What is typed gives way to the order as another stored it.
void Giris_Siparis::takeStored()
{
    const qint32 number = m_stored;
    TusKapa();
    m_ui->Sipnum->setText(QString::number(number));
    SiparisBul(number);
}

void Giris_Siparis::saveAsNew()
{
    if (!m_ui->Rapor->finishEdit())
        return;
    Siparis siparis = collect();
    if (!check(siparis))
        return;
    const std::optional<QString> answer =
        m_context.messages.input(this, u"SİPARİŞ TARİHİ"_s, u"SİPARİŞ TARİH BİLGİSİ"_s,
                                 formatDate(m_context.oturum.CalismaTarihi));
    const QDate date = typedDate(answer.value_or(QString()));
    if (!date.isValid()) {
        m_context.messages.say(this, u"HATALI TARIH BILGISI GIRILIYOR!"_s, MessageIcon::Exclamation,
                               u"HATA"_s);
        return;
    }
    LoadedRows copy;
    try {
        m_store.saveAsNew(siparis, date, copy);
    } catch (...) {
        // With its header on disk, the copy is what the next save completes.
        if (siparis.Sipnum != 0) {
            SiparisDoldur(siparis);
            m_loaded = copy;
        }
        throw;
    }
    showNumber(siparis);
    afterSave(siparis, u"yeni sipariş"_s);
}

void Giris_Siparis::afterSave(const Siparis &siparis, const QString &kind)
{
    guarded(m_context.messages, this, [&] {
        if (m_context.messages.ask(this, u"SİPARİŞ LİSTESİ ALINSIN ..!"_s,
                                   MessageIcon::Exclamation))
            showSlip(siparis);
    });
    TusKapa();
    m_saved->tell(u"%1 nolu %2"_s.arg(QString::number(siparis.Sipnum), kind));
}

/// The question, and what goes with the order.
QString Giris_Siparis::removalQuestion() const
{
    const SiparisBoyu boyut = m_store.boyut(m_stored);
    return m_ui->Sipnum->text() + u" NOLU SİPARİŞ SİLİNECEK.\n\nMüşteri: %1\nAdet: %2 (%3 satır)\n"
                                  "Üretimde olan satır: %4"_s.arg(m_opened.FirAdi.trimmed(),
                                                                  QString::number(boyut.adet),
                                                                  QString::number(boyut.satir),
                                                                  QString::number(boyut.uretimde));
}

void Giris_Siparis::removeOrder()
{
    if (!m_context.messages.ask(this, removalQuestion(), MessageIcon::Exclamation, {},
                                MessageAnswer::No))
        return;
    const SaveEnd end = saveOver(m_context.messages, this, m_loaded,
                                 [&](LoadedRows &loaded) { m_store.remove(m_stored, loaded); });
    if (end == SaveEnd::Done || end == SaveEnd::Gone)
        TusKapa();
    else if (end == SaveEnd::Theirs)
        takeStored();
}

} // namespace kuyum
