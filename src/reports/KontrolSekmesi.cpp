#include "KontrolSekmesi.h"

#include "Dates.h"
#include "EntryControls.h"
#include "Guarded.h"
#include "KeptLinesNote.h"
#include "Numbers.h"
#include "Oturum.h"
#include "SavedLine.h"
#include "StoppableWork.h"
#include "TakipModel.h"
#include "Theme.h"
#include "ui_KontrolSekmesi.h"
#include "UretimStore.h"

#include <cmath>
#include <limits>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

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
        SiparisBul(leadingNumber(m_ui->Sipnum->text()));
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
    if (possible)
        found = m_takip.SiparisBul(qint32(number));
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
    m_ui->modelPaneli->goster(current.isValid()
                                  ? current.siblingAtColumn(TakipModel::Model).data().toString()
                                  : QString());
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
    bool ended = false;
    {
        StoppableWork work(this, u"SIPARIS KONTROL"_s, u"Satırlar kaydediliyor..."_s);
        ended = m_takip.kaydet(m_Sipnum, m_model->satirlar(), tell, work.progress());
    }
    // What was not written, since it failed or the user stopped, stands only here.
    if (!ended || failed)
        return;
    const QString what = u"%1 nolu siparişin satırları"_s.arg(m_Sipnum);
    clearTab();
    m_saved->tell(what);
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
