#include "Giris_Kur.h"

#include "Dates.h"
#include "EntryControls.h"
#include "Guarded.h"
#include "KurModel.h"
#include "Oturum.h"
#include "SavedLine.h"
#include "SaveOver.h"
#include "Theme.h"
#include "ui_Giris_Kur.h"
#include "WindowSize.h"

#include <QKeyEvent>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace kuyum {

Giris_Kur::Giris_Kur(const ScreenContext &context, QSettings &settings, QWidget *parent)
    : QDialog(parent),
      m_context(context),
      m_settings(settings),
      m_store(context.oturum),
      m_ui(std::make_unique<Ui::Giris_Kur>()),
      m_model(new KurModel(this)),
      m_saved(new SavedLine(this))
{
    m_ui->setupUi(this);
    setUpLook();
    m_ui->KurGrid->setMessages(context.messages);
    m_ui->KurGrid->setModel(m_model);
    m_ui->Check_Alis->setChecked(settings.value(buyingRatesKey(), 0).toInt() == 1);
    GridDoldur();
    connectControls();
    m_ui->Tarih->setDate(context.oturum.CalismaTarihi);
    enterDate();
}

Giris_Kur::~Giris_Kur() = default;

void Giris_Kur::setUpLook()
{
    fitToScreen(*this, QSize(width(), 460));
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, themeColors(quiet).muted);
    m_ui->kurNotu->setPalette(quiet);
    m_ui->kurNotu->setMinimumHeight(2 * fontMetrics().lineSpacing()); // its longest text
}

/// A button's action; an unexpected error ends the action, not the screen.
template <typename Action>
void Giris_Kur::bind(QWidget *button, Action action)
{
    connect(static_cast<QPushButton *>(button), &QPushButton::clicked, this,
            [this, action] { guarded(m_context.messages, this, [&] { (this->*action)(); }); });
}

void Giris_Kur::connectControls()
{
    bind(m_ui->Gir_Cmd, &Giris_Kur::dateEntered);
    bind(m_ui->Liste_Cmd, &Giris_Kur::pickDate);
    bind(m_ui->Kayit_Cmd, &Giris_Kur::save);
    bind(m_ui->Sil_Cmd, &Giris_Kur::remove);
    bind(m_ui->Geri_Cmd, &Giris_Kur::abandon);
    bind(m_ui->Son_Cmd, &Giris_Kur::reject);
    m_saved->standAboveButtons(*m_ui->layout);
    m_saved->goWith(*m_ui->Tarih);
    connect(m_ui->Check_Alis, &QCheckBox::toggled, this, &Giris_Kur::keepBuyingRates);
    connect(m_ui->KurGrid, &RateGrid::finished, this,
            [this] { m_ui->Kayit_Cmd->setFocus(Qt::TabFocusReason); });
}

// Keys

void Giris_Kur::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(*event))
        guarded(m_context.messages, this, [this] { enterPressed(); });
    else if (event->key() == Qt::Key_Escape && isEntering())
        guarded(m_context.messages, this, [this] { abandon(); });
    else
        QDialog::keyPressEvent(event);
}

void Giris_Kur::enterPressed()
{
    if (focusWidget() == m_ui->Tarih)
        dateEntered();
    else if (auto *button = qobject_cast<QAbstractButton *>(focusWidget()))
        button->click();
}

// States

void Giris_Kur::GridDoldur()
{
    m_model->setAlisKurlari(m_ui->Check_Alis->isChecked() ? AlisKurlari::Tutulur
                                                          : AlisKurlari::Yok);
    m_ui->KurGrid->spreadColumns();
    // As wide as the grid asks for, narrower too than it was before.
    layout()->activate();
    resize(layout()->minimumSize().width(), height());
    if (isVisible())
        keepOnScreen(*this);
}

/// Back to the date, with the grid cut back to its header.
void Giris_Kur::enterDate()
{
    m_opened.clear();
    m_model->fill({});
    m_ui->kurNotu->clear();
    setEntering(false);
    m_ui->Tarih->setFocus(Qt::OtherFocusReason);
}

bool Giris_Kur::isEntering() const
{
    return m_ui->KurGrid->isEnabled();
}

void Giris_Kur::setEntering(bool on)
{
    for (QWidget *control :
         {static_cast<QWidget *>(m_ui->Tarih), static_cast<QWidget *>(m_ui->Gir_Cmd),
          static_cast<QWidget *>(m_ui->Liste_Cmd)})
        control->setEnabled(!on);
    for (QWidget *control :
         {static_cast<QWidget *>(m_ui->KurGrid), static_cast<QWidget *>(m_ui->Kayit_Cmd),
          static_cast<QWidget *>(m_ui->Geri_Cmd)})
        control->setEnabled(on);
    m_ui->Sil_Cmd->setEnabled(false);
}

bool Giris_Kur::mayLeave()
{
    m_ui->KurGrid->finishEdit();
    if (m_model->satirlar() == m_opened)
        return true;
    return m_context.messages.ask(this, u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s,
                                  MessageIcon::Exclamation, {}, MessageAnswer::No);
}

void Giris_Kur::abandon()
{
    if (mayLeave())
        enterDate();
}

void Giris_Kur::reject()
{
    if (mayLeave())
        QDialog::reject();
}

// Finding and showing

void Giris_Kur::dateEntered()
{
    if (m_ui->Tarih->date().isValid()) {
        KurGoster();
        return;
    }
    m_context.messages.say(this, u"Tarih Hatali."_s);
    m_ui->Tarih->setDate(m_context.oturum.CalismaTarihi);
    m_ui->Tarih->setFocus(Qt::OtherFocusReason);
    m_ui->Tarih->selectAll();
}

void Giris_Kur::KurGoster()
{
    const QDate date = m_ui->Tarih->date();
    m_loaded = m_store.oku(date);
    QList<KurSatiri> rows = m_store.kurlar(date);
    const bool hasOwn = !rows.isEmpty();
    const QString note = noteOn(date, hasOwn);
    if (!hasOwn) {
        if (!m_store.hasRates())
            m_context.messages.say(this, u"DOVIZ DOSYASINDA HENUZ HIC KAYIT YOK."_s,
                                   MessageIcon::Information);
        rows = m_store.paraBirimleri();
    }
    m_date = date;
    m_opened = rows;
    m_ui->Tarih->setDate(date);
    m_ui->kurNotu->setText(note);
    m_saved->forget();
    m_model->fill(rows);
    setEntering(true);
    m_ui->Sil_Cmd->setEnabled(hasOwn);
    m_ui->KurGrid->goToFirst();
}

QString Giris_Kur::noteOn(QDate Tarih, bool hasOwn) const
{
    if (!hasOwn)
        return u"Bu tarihe henüz kur girilmemiş."_s;
    const QDate origin = m_store.carriedFrom(Tarih);
    if (!origin.isValid())
        return {};
    return u"Kurlar %1 tarihinden taşındı, o günden beri değişmedi."_s.arg(formatDate(origin));
}

void Giris_Kur::pickDate()
{
    const LookupAnswer answer = m_context.openList(this, {u"Kur Listesi"_s, {}});
    if (!answer.SecilenTarih.isValid())
        return;
    m_ui->Tarih->setDate(answer.SecilenTarih);
    KurGoster();
}

// Saving

void Giris_Kur::save()
{
    m_ui->KurGrid->finishEdit();
    const QString what = formatDate(m_date) + u" kurları"_s;
    const bool saved = store([this](LoadedRows &loaded) {
        m_store.save(m_date, m_model->satirlar(), m_model->alisKurlari(), loaded);
    });
    if (saved)
        m_saved->tell(what);
}

/// Back to the date when it was written; whether it was.
bool Giris_Kur::store(const std::function<void(LoadedRows &)> &write)
{
    const SaveEnd end = saveOver(m_context.messages, this, m_loaded, write);
    if (end == SaveEnd::Theirs || end == SaveEnd::Gone)
        KurGoster();
    else if (end == SaveEnd::Done)
        enterDate();
    return end == SaveEnd::Done;
}

void Giris_Kur::remove()
{
    if (!m_context.messages.ask(
            this, formatDate(m_date) + u" TARIHLI KURLAR SILINECEK, ONAYLIYORMUSUNUZ."_s,
            MessageIcon::Critical, {}, MessageAnswer::No))
        return;
    store([this](LoadedRows &loaded) { m_store.remove(m_date, loaded); });
}

void Giris_Kur::keepBuyingRates(bool on)
{
    m_ui->KurGrid->finishEdit();
    m_settings.setValue(buyingRatesKey(), on ? 1 : 0);
    GridDoldur();
}

QString Giris_Kur::buyingRatesKey() const
{
    return u"kur/alis/%1"_s.arg(m_context.oturum.SirketKodu);
}

} // namespace kuyum
