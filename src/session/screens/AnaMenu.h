#pragma once

#include "MenuScreens.h"

#include <QMainWindow>

class QLabel;
class QPushButton;
namespace Ui {
class AnaMenu;
}

namespace kuyum {

class MenuPanel;
class Messages;
struct Oturum;

/// The main menu: the buttons of the items the user may use, the fixed buttons
/// beside them, and every screen on top of it. It lives from the login to the
/// end of the program.
class AnaMenu : public QMainWindow
{
    Q_OBJECT

public:
    AnaMenu(Oturum &oturum, Messages &messages, MenuScreens screens);
    ~AnaMenu() override;

    /// Reads the menu file of the program's folder and the user's rights, and
    /// sees to the day's exchange rates.
    void load(const QString &programFolder);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showSession();
    void connectFixedButtons();
    void bind(QPushButton *button, int number);
    void readMenuFile(const QString &programFolder);
    void showItems();
    void showHint(int number, bool known);
    void open(int number);

    Oturum &m_oturum;
    Messages &m_messages;
    MenuScreens m_screens;
    std::unique_ptr<Ui::AnaMenu> m_ui;
    MenuPanel *m_panel;
    QList<QPushButton *> m_fixedButtons;
    QLabel *m_DataYolu;
};

} // namespace kuyum
