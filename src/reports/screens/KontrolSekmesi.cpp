#include "KontrolSekmesi.h"

#include "Dates.h"
#include "EntryControls.h"
#include "Guarded.h"
#include "KeptLinesNote.h"
#include "Numbers.h"
#include "OrderCode.h"
#include "Oturum.h"
#include "SavedLine.h"
#include "SaveOver.h"
#include "ScannedNumber.h"
#include "StoppableWork.h"
#include "TakipModel.h"
#include "Theme.h"
#include "ui_KontrolSekmesi.h"
#include "UretimStore.h"

#include <cmath>
#include <limits>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace kuyum {

KontrolSekmesi::KontrolSekmesi(const ScreenContext &context, QWidget *parent)
    : QWidget(parent),
      m_context(context),
      m_takip(context.oturum),
      m_ui(std::make_unique<Ui::KontrolSekmesi>()),
      m_model(new TakipModel(this)),
      m_saved(new SavedLine(this))
{
    m_ui->setupUi(this);
    m_ui->modelPaneli->setOturum(context.oturum);
    // What is shown only does not look like a box to type in.
    QPalette shown = palette();
    shown.setColor(QPalette::Base, shown.color(QPalette::Window));
    for (QLineEdit *box : {m_ui->SipTrh, m_ui->TesTrh, m_ui->Firkod, m_ui->FirAdi, m_ui->Ayar,
                           m_ui->Patent, m_ui->Aciklama})
        box->setPalette(shown);
    QPalette warning = palette();
    warning.setColor(QPalette::WindowText, themeColors(warning).mark);
    m_ui->gizliNotu->setPalette(warning);
    m_modelTimer.setSingleShot(true);
    setUpGrid();
    connectControls();
    clearTab();
}

KontrolSekmesi::~KontrolSekmesi() = default;

void KontrolSekmesi::setUpGrid()
{
    const UretimStore store(m_context.oturum);
    const bool yetki = m_takip.duzenlemeYetkisi();
    m_ui->Rapor1->setUp(*m_model, m_context.messages);
    m_ui->Rapor1->setDuzen(
        {yetki, store.siparisDurumlari(), store.uretimDurumlari(), m_context.oturum.CalismaTarihi});
    m_ui->kullanimNotu->setText(yetki ? u"Durum ve tarihler Enter ya da çift tıklama ile girilir."_s
                                      : u"Durum ve tarihler Delete ile boşaltılır."_s);
    m_ui->splitter->setStretchFactor(0, 3);
    m_ui->splitter->setStretchFactor(1, 1);
}

void KontrolSekmesi::connectControls()
{
    const auto bind = [this](QPushButton *button, void (KontrolSekmesi::*action)()) {
        connect(button, &QPushButton::clicked, this,
                [this, action] { guarded(m_context.messages, this, [&] { (this->*action)(); }); });
    };
    bind(m_ui->CmdListe1, &KontrolSekmesi::pickOrder);
    bind(m_ui->cmdKayit1, &KontrolSekmesi::save);
    bind(m_ui->cmdVazgec1, &KontrolSekmesi::clearTab);
    m_saved->standAboveButtons(*m_ui->layout);
    m_saved->goWith(*m_ui->Sipnum);
    keepNumeric(*m_ui->Sipnum, m_context.messages);
    m_ui->Sipnum->setMaxLength(orderNumberLength);
    const auto isOrderCode = [](const QString &text) { return readOrderCode(text).has_value(); };
    connect(new ScannedNumber(m_ui->Sipnum, isOrderCode), &ScannedNumber::complete, this,
            [this] { guarded(m_context.messages, this, [this] { numberEntered(); }); });
    connect(m_ui->Rapor1, &TakipGrid::abandoned, this, &KontrolSekmesi::escape);
    connect(m_ui->Rapor1->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { m_modelTimer.start(0); });
    connect(&m_modelTimer, &QTimer::timeout, this,
            [this] { guarded(m_context.messages, this, [this] { showModel(); }); });
}

void KontrolSekmesi::focusFirst()
{
    (isOpen() ? static_cast<QWidget *>(m_ui->Rapor1) : m_ui->Sipnum)->setFocus();
}

// Keys

void KontrolSekmesi::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(*event)) {
        if (m_ui->Sipnum->hasFocus())
            guarded(m_context.messages, this, [this] { numberEntered(); });
        else if (auto *button = qobject_cast<QAbstractButton *>(window()->focusWidget()))
            button->click();
    } else if (event->key() == Qt::Key_Escape && isOpen()) {
        escape();
    } else {
        QWidget::keyPressEvent(event);
    }
}

/// From the order back to its number.
void KontrolSekmesi::escape()
{
    guarded(m_context.messages, this, [this] {
        if (mayLeave())
            clearTab();
    });
}

// Opening

void KontrolSekmesi::setOpen(bool on)
{
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->Sipnum, m_ui->CmdListe1})
        control->setEnabled(!on);
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->Rapor1, m_ui->cmdKayit1,
                                                             m_ui->cmdVazgec1, m_ui->modelPaneli})
        control->setEnabled(on);
}

void KontrolSekmesi::numberEntered()
{
    if (m_ui->Sipnum->text().trimmed().isEmpty())
        pickOrder();
    else
        openEntered(readOrderNumber(m_ui->Sipnum->text()));
}

/// A number that was typed, or a slip's bar code.
void KontrolSekmesi::openEntered(const OrderNumberEntry &entry)
{
    if (entry.refusal.isEmpty()) {
        if (readOrderCode(m_ui->Sipnum->text()))
            m_ui->Sipnum->setText(plainNumber(entry.number));
        SiparisBul(entry.number);
        return;
    }
    m_context.messages.say(this, entry.refusal, MessageIcon::Exclamation);
    m_ui->Sipnum->selectAll();
}

void KontrolSekmesi::pickOrder()
{
    const LookupAnswer answer = m_context.openList(this, {u"Siparis Listesi"_s, {}});
    if (answer.SecilenNo <= 0)
        return;
    m_ui->Sipnum->setText(QString::number(answer.SecilenNo));
    SiparisBul(answer.SecilenNo);
}

void KontrolSekmesi::SiparisBul(double number)
{
    const bool possible =
        number >= 1 && number <= std::numeric_limits<qint32>::max() && std::floor(number) == number;
    std::optional<TakipSiparisi> found;
    if (possible) {
        m_loaded = m_takip.oku(qint32(number));
        found = m_takip.SiparisBul(qint32(number));
    }
    if (found) {
        SiparisDoldur(*found);
        return;
    }
    m_context.messages.say(this, u"SIPARIS KAYDINA ULASILAMADI..."_s, MessageIcon::Exclamation,
                           u"HATA"_s);
    m_ui->Sipnum->selectAll();
}

void KontrolSekmesi::SiparisDoldur(const TakipSiparisi &siparis)
{
    const Siparis &baslik = siparis.baslik;
    m_Sipnum = baslik.Sipnum;
    m_ui->Sipnum->setText(QString::number(baslik.Sipnum));
    m_ui->SipTrh->setText(formatDate(baslik.SipTrh));
    m_ui->TesTrh->setText(formatDate(baslik.TesTrh));
    m_ui->Firkod->setText(QString::number(baslik.Firkod));
    m_ui->FirAdi->setText(baslik.FirAdi);
    m_ui->Ayar->setText(plainNumber(baslik.Ayar));
    m_ui->Patent->setText(baslik.Patent);
    m_ui->Aciklama->setText(baslik.Aciklama);
    for (QLineEdit *box : {m_ui->FirAdi, m_ui->Patent, m_ui->Aciklama}) {
        box->setCursorPosition(0);
        box->setToolTip(box->text());
    }
    m_model->fill(siparis.satirlar);
    m_ui->Rapor1->horizontalHeader()->setSortIndicatorShown(false);
    tellHiddenLines(siparis.gizliSatirlar);
    m_saved->forget();
    setOpen(true);
    m_ui->Rapor1->setCurrentIndex(m_model->index(0, TakipModel::SipDur));
    m_ui->Rapor1->setFocus();
}

/// Tells of the order's lines that the query of the grid does not bring.
void KontrolSekmesi::tellHiddenLines(const QList<KeptLine> &lines)
{
    m_ui->gizliNotu->setText(
        u"Rengi ya da ürün tipi tanımlı olmayan %1 satır gösterilemiyor (%2). "
        "Kaydederken olduğu gibi kalır."_s.arg(QString::number(lines.size()), namesOf(lines)));
    m_ui->gizliNotu->setVisible(!lines.isEmpty());
}

void KontrolSekmesi::showModel()
{
    const QModelIndex current = m_ui->Rapor1->currentIndex();
    const TakipSatiri row = current.isValid() ? m_model->satirlar()[current.row()] : TakipSatiri();
    m_ui->modelPaneli->goster(row.model, row.KisaAD);
}

// Leaving and saving

bool KontrolSekmesi::mayLeave()
{
    if (!isOpen() || (!m_model->isChanged() && !m_ui->Rapor1->hasUnfinishedEdit()))
        return true;
    return m_context.messages.ask(this, u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s,
                                  MessageIcon::Exclamation, {}, MessageAnswer::No);
}

void KontrolSekmesi::save()
{
    if (!m_ui->Rapor1->finishEdit() ||
        !m_context.messages.ask(this, u"DEGİSİKLİKLER KAYIT EDİLECEK ?"_s,
                                MessageIcon::Exclamation))
        return;
    bool failed = false;
    const auto tell = [&](const QString &text) {
        failed = true;
        m_context.messages.say(this, text, MessageIcon::Exclamation);
    };
    TakipSonucu sonuc;
    const SaveEnd end = saveOver(m_context.messages, this, m_loaded, [&](LoadedRows &loaded) {
        StoppableWork work(this, u"SIPARIS KONTROL"_s, u"Satırlar kaydediliyor..."_s);
        sonuc = m_takip.kaydet({m_Sipnum, m_model->opened(), m_model->satirlar()}, loaded, tell,
                               work.progress());
    });
    if (end == SaveEnd::Theirs || end == SaveEnd::Gone) {
        const qint32 number = m_Sipnum;
        clearTab();
        m_ui->Sipnum->setText(QString::number(number));
        SiparisBul(number);
        return;
    }
    tellMissing(sonuc.kayip);
    // What was not written, since it failed or the user stopped, stands only here.
    if (end == SaveEnd::Done && sonuc.ended && sonuc.kayip.isEmpty() && !failed) {
        const QString what = u"%1 nolu siparişin satırları"_s.arg(m_Sipnum);
        clearTab();
        m_saved->tell(what);
    }
}

/// Tells of lines that another save of the order took away or changed so that
/// they are not known again.
void KontrolSekmesi::tellMissing(const QList<TakipSatiri> &lines)
{
    if (lines.isEmpty())
        return;
    QList<KeptLine> missing;
    for (const TakipSatiri &line : lines)
        missing.append({line.Dotosayi, line.model, line.renk, line.adet, line.state});
    m_context.messages.say(
        this,
        u"Sipariş bu arada başka bir yerde değiştirilmiş; şu satırlar artık bulunamıyor ya da "
        "birbirinden ayırt edilemiyor, değişiklikleri kaydedilemedi:\n\n%1\n\nYazdıklarınız "
        "ekranda duruyor. Siparişin şimdiki hali için vazgeçip siparişi yeniden açın."_s.arg(
            namesOf(missing)),
        MessageIcon::Exclamation);
}

/// cmdVazgec1: back to the order number, with everything emptied.
void KontrolSekmesi::clearTab()
{
    m_Sipnum = 0;
    m_ui->Rapor1->abandonEdit();
    for (QLineEdit *box : {m_ui->Sipnum, m_ui->SipTrh, m_ui->TesTrh, m_ui->Firkod, m_ui->FirAdi,
                           m_ui->Ayar, m_ui->Patent, m_ui->Aciklama}) {
        box->clear();
        box->setToolTip({});
    }
    m_model->fill({});
    tellHiddenLines({});
    m_modelTimer.start(0);
    setOpen(false);
    m_ui->Sipnum->setFocus();
}

} // namespace kuyum
