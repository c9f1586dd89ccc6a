#include "AnaMenu.h"

#include "DailyRates.h"
#include "Dates.h"
#include "ElidedLabel.h"
#include "Guarded.h"
#include "MenuPanel.h"
#include "MenuStore.h"
#include "Numbers.h"
#include "Theme.h"
#include "ui_AnaMenu.h"
#include "WindowSize.h"

#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// The menu numbers whose screens are named after what they do.
constexpr int productionTracking = 12;
constexpr int orderControl = 13;
constexpr int firstFree = 14;
constexpr int lastFree = 16;

} // namespace

AnaMenu::AnaMenu(Oturum &oturum, Messages &messages, MenuScreens screens)
    : m_oturum(oturum),
      m_messages(messages),
      m_screens(std::move(screens)),
      m_ui(std::make_unique<Ui::AnaMenu>()),
      m_panel(nullptr),
      m_DataYolu(new QLabel(this))
{
    m_ui->setupUi(this);
    m_panel = m_ui->panel;
    connect(m_panel, &MenuPanel::chosen, this, &AnaMenu::open);
    connect(m_panel, &MenuPanel::numberTyped, this, &AnaMenu::showHint);
    connectFixedButtons();
    showSession();
    fitToScreen(*this, size());
}

AnaMenu::~AnaMenu() = default;

void AnaMenu::showSession()
{
    setWindowTitle(m_oturum.SirketAdi + u" -----> "_s + m_oturum.KullaniciAdi);
    statusBar()->setContentsMargins(10, 2, 10, 2);
    auto *program =
        new ElidedLabel(u"Kuyum  -  Altın takı sipariş ve üretim takibi  -  Ver : 2012.03"_s);
    program->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(program, 1);
    m_DataYolu->setText(m_oturum.DataYolu);
    statusBar()->addPermanentWidget(m_DataYolu);

    QFont title = font();
    title.setPointSizeF(title.pointSizeF() * 1.6);
    title.setBold(true);
    m_ui->company->setFont(title);
    m_ui->company->setText(m_oturum.SirketAdi);
    const QDate date = m_oturum.CalismaTarihi;
    m_ui->user->setText(u"Kullanıcı: %1     Çalışma tarihi: %2, %3"_s.arg(
        m_oturum.KullaniciAdi, formatDate(date), QLocale().dayName(date.dayOfWeek())));

    QPalette band = m_ui->side->palette();
    band.setColor(QPalette::Window, band.color(QPalette::AlternateBase));
    m_ui->side->setPalette(band);
    m_ui->side->setAutoFillBackground(true);

    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, themeColors(quiet).muted);
    const QList<QLabel *> quietLabels = {m_ui->user,
                                         m_ui->hint,
                                         m_ui->groupOrders,
                                         m_ui->groupDefinitions,
                                         m_ui->groupCatalogues,
                                         m_ui->groupSystem};
    for (QLabel *label : quietLabels)
        label->setPalette(quiet);
}

void AnaMenu::connectFixedButtons()
{
    // They open the same screens as the menu's numbers, whatever the rights.
    const QList<std::pair<QPushButton *, int>> fixed = {
        {m_ui->Cmd6, 7}, {m_ui->Cmd7, 11},  {m_ui->Cmd15, 12}, {m_ui->Cmd10, 5}, {m_ui->Cmd5, 3},
        {m_ui->cmd2, 0}, {m_ui->Cmd1, 1},   {m_ui->Cmd4, 2},   {m_ui->Cmd11, 9}, {m_ui->Cmd12, 8},
        {m_ui->Cmd9, 4}, {m_ui->Cmd13, 10}, {m_ui->Cmd14, 6},  {m_ui->Cmd8, 18}, {m_ui->Cmd3, 19},
    };
    for (const auto &[button, number] : fixed) {
        bind(button, number);
        connect(button, &QPushButton::clicked, this, [this, number = number] { open(number); });
        m_fixedButtons.append(button);
    }
    m_fixedButtons.append(m_ui->Son_Cmd);
    connect(m_ui->Son_Cmd, &QPushButton::clicked, this, &QWidget::close);
    for (QPushButton *button : std::as_const(m_fixedButtons)) {
        button->setAutoDefault(true);
        button->setFixedHeight(fontMetrics().height() + 13);
        button->installEventFilter(this);
    }
    connect(m_panel, &MenuPanel::leftEdge, this, [this] { focusFirst(m_fixedButtons); });
}

/// A button whose number has no screen is to be seen as such.
void AnaMenu::bind(QPushButton *button, int number)
{
    if (m_screens.contains(number))
        return;
    button->setEnabled(false);
    button->setToolTip(number >= firstFree && number <= lastFree
                           ? u"Bu numaraya bağlı bir ekran yoktur."_s
                           : u"Bu ekran programın bu sürümünde henüz yok."_s);
}

void AnaMenu::load(const QString &programFolder)
{
    guarded(m_messages, this, [&] { readMenuFile(programFolder); });
    guarded(m_messages, this, [&] { showItems(); });
    guarded(m_messages, this, [&] { carryRatesForward(m_oturum); });
}

void AnaMenu::readMenuFile(const QString &programFolder)
{
    QFile file(QDir(programFolder).filePath(u"Siparismenusu.txt"_s));
    if (!file.exists())
        return;
    if (!file.open(QFile::ReadOnly)) {
        throw std::runtime_error(
            (u"Menü dosyası okunamadı: "_s + file.fileName() + u"\n"_s + file.errorString())
                .toStdString());
    }
    MenuStore(m_oturum).addFrom(parseMenuFile(file.readAll()));
}

void AnaMenu::showItems()
{
    m_panel->showItems(MenuStore(m_oturum).itemsOfUser());
    showHint(0, true);
    for (int number = 0; QPushButton *button = m_panel->CmdMenu(number); ++number)
        bind(button, number);
    m_panel->focusFirst();
}

/// What typing a number came to.
void AnaMenu::showHint(int number, bool known)
{
    QPalette look = m_ui->user->palette();
    if (!known)
        look.setColor(QPalette::WindowText, themeColors(look).mark);
    m_ui->hint->setPalette(look);
    if (!known)
        m_ui->hint->setText(u"%1 numaralı bir ekran yok ya da size açık değil."_s.arg(number));
    else
        m_ui->hint->setText(m_panel->isEmpty()
                                ? u"Bu kullanıcıya açılmış bir menü yok."_s
                                : u"Numarasını yazıp Enter'a basmak da bir ekranı açar."_s);
}

void AnaMenu::open(int number)
{
    const auto factory = m_screens.find(number);
    if (factory == m_screens.end())
        return;
    guarded(m_messages, this, [&] {
        if (number == productionTracking)
            m_oturum.RaporTuru = u"URETIM RAPORU"_s;
        if (number == orderControl)
            m_oturum.RaporTuru = u"SIPARIS KONTROL"_s;
        const std::unique_ptr<QDialog> screen = factory->second(this);
        screen->exec();
    });
    // The settings may have opened another database.
    m_DataYolu->setText(m_oturum.DataYolu);
}

bool AnaMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QMainWindow::eventFilter(watched, event);
    const auto *button = qobject_cast<QWidget *>(watched);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Down:
        focusAlong(m_fixedButtons, button, 1);
        return true;
    case Qt::Key_Up:
        focusAlong(m_fixedButtons, button, -1);
        return true;
    case Qt::Key_Right:
        m_panel->focusFirst();
        return true;
    case Qt::Key_Left:
        return true;
    default:
        return QMainWindow::eventFilter(watched, event);
    }
}

void AnaMenu::keyPressEvent(QKeyEvent *event)
{
    if (event->text().size() == 1 && isDecimalDigit(event->text()[0]) &&
        !event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier)) {
        m_panel->typeDigit(event->text()[0]);
        return;
    }
    QMainWindow::keyPressEvent(event);
}

} // namespace kuyum
