#include "Parametreler.h"

#include "AyarSekmesi.h"
#include "BakimSekmesi.h"
#include "DurumSekmesi.h"
#include "EntryControls.h"
#include "Guarded.h"
#include "Theme.h"
#include "ui_Parametreler.h"
#include "WindowSize.h"
#include "YedekSekmesi.h"

#include <QKeyEvent>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace kuyum {

Parametreler::Parametreler(const ScreenContext &context, const ParametreServices &services,
                           QWidget *parent)
    : QDialog(parent, Qt::Window),
      m_context(context),
      m_ui(std::make_unique<Ui::Parametreler>()),
      m_ayar(new AyarSekmesi(context, services, this)),
      m_durum(new DurumSekmesi(context, this)),
      m_yedek(new YedekSekmesi(context, this)),
      m_bakim(new BakimSekmesi(context, this))
{
    m_ui->setupUi(this);
    setUpTabs();
    connectControls();
    fitToScreen(*this, QSize(900, 560));
    load();
}

Parametreler::~Parametreler() = default;

void Parametreler::setUpTabs()
{
    m_ui->ParametreTab->addTab(m_ayar, u"&Ayarlar"_s);
    m_ui->ParametreTab->addTab(m_durum, u"&Durum kodları"_s);
    m_ui->ParametreTab->addTab(m_yedek, u"&Yedekler"_s);
    m_ui->ParametreTab->addTab(m_bakim, u"&Bakım"_s);
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, themeColors(quiet).muted);
    m_ui->kayitDurumu->setPalette(quiet);
}

void Parametreler::connectControls()
{
    QTabWidget *tabs = m_ui->ParametreTab;
    connect(tabs, &QTabWidget::currentChanged, this, &Parametreler::enterTab);
    // The tab control takes these keys only from those that have no use for them.
    for (const int step : {1, -1}) {
        const auto *next = new QShortcut(
            step > 0 ? Qt::CTRL | Qt::Key_Tab : Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, this);
        connect(next, &QShortcut::activated, this, [tabs, step] {
            tabs->setCurrentIndex((tabs->currentIndex() + step + tabs->count()) % tabs->count());
        });
    }
    connect(m_ayar, &AyarSekmesi::edited, m_ui->kayitDurumu, &QLabel::clear);
    connect(m_durum, &DurumSekmesi::saved, m_ui->kayitDurumu, &SavedLine::tell);
    connect(m_ayar, &AyarSekmesi::companyChanged, this, &Parametreler::tellNewCompany);
    connect(m_yedek, &YedekSekmesi::restoreAsked, this,
            [this] { guarded(m_context.messages, this, [this] { restore(); }); });
    connect(m_yedek, &YedekSekmesi::restored, this, &Parametreler::load);
    connect(m_bakim, &BakimSekmesi::repaired, this, [this] {
        if (!m_ayar->degisti())
            m_ayar->load();
        m_durum->load();
    });
    connect(m_ui->cmdKayit, &QPushButton::clicked, this,
            [this] { guarded(m_context.messages, this, [this] { kaydet(); }); });
    connect(m_ui->Yardim, &QPushButton::clicked, this, [this] {
        guarded(m_context.messages, this, [this] {
            m_context.openList(this, {u"Yardim Bilgileri"_s, {}});
        });
    });
    connect(m_ui->cmdSon, &QPushButton::clicked, this, &Parametreler::reject);
}

void Parametreler::load()
{
    m_ayar->load();
    m_durum->load();
    m_ui->cmdKayit->setEnabled(m_ayar->kaydedilebilir());
    m_ui->kayitDurumu->clear();
    enterTab();
}

void Parametreler::enterTab()
{
    const QWidget *tab = m_ui->ParametreTab->currentWidget();
    if (tab == m_ayar) {
        m_ayar->focusFirst();
    } else if (tab == m_durum) {
        m_durum->focusFirst();
    } else if (tab == m_yedek) {
        m_yedek->load(); // a repair makes one, too
        m_yedek->focusFirst();
    } else {
        m_bakim->focusFirst();
    }
}

// Keys

void Parametreler::keyPressEvent(QKeyEvent *event)
{
    // The steps after the one that was meant would save or close.
    if (event->isAutoRepeat() && (isEnter(*event) || event->key() == Qt::Key_Escape))
        return;
    if (isEnter(*event))
        guarded(m_context.messages, this, [this] { enterPressed(); });
    else
        QDialog::keyPressEvent(event);
}

void Parametreler::enterPressed()
{
    if (auto *button = qobject_cast<QAbstractButton *>(focusWidget()))
        button->click();
    else if (focusWidget() == m_ui->ParametreTab->tabBar())
        enterTab();
    else if (m_ui->ParametreTab->currentWidget() == m_ayar && !m_ayar->goOn())
        m_ui->cmdKayit->setFocus(Qt::TabFocusReason);
}

// Saving

void Parametreler::kaydet()
{
    // What is typed, and may be refused, is seen.
    if (m_ayar->degisti())
        m_ui->ParametreTab->setCurrentWidget(m_ayar);
    if (m_ayar->kaydet())
        m_ui->kayitDurumu->tell(u"Ayarlar"_s);
}

void Parametreler::tellNewCompany()
{
    load();
    m_context.messages.say(
        this,
        u"Veri tabanı değişti.\n\nKullanıcı, yetkiler ve günün kurları yeni veri "
        "tabanından ancak programın bir sonraki açılışında okunur. Programı "
        "kapatıp yeniden açın."_s,
        MessageIcon::Information);
}

/// What is typed belongs to the database that goes.
void Parametreler::restore()
{
    if (mayLeave())
        m_yedek->restore();
}

bool Parametreler::mayLeave()
{
    return !m_ayar->degisti() ||
           m_context.messages.ask(this, u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s,
                                  MessageIcon::Exclamation, {}, MessageAnswer::No);
}

void Parametreler::reject()
{
    guarded(m_context.messages, this, [this] {
        if (mayLeave())
            QDialog::reject();
    });
}

} // namespace kuyum
