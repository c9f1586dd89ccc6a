#pragma once

#include "Database.h"

#include <memory>
#include <QDialog>

namespace Ui {
class Pass_Form;
}

namespace kuyum {

class Messages;
struct Oturum;
struct Sirket;

/// The login: company, user, working date and password. What was chosen goes
/// into the Oturum; GirisTamam tells whether the password was accepted.
class Pass_Form : public QDialog
{
    Q_OBJECT

public:
    Pass_Form(Oturum &oturum, Messages &messages, QWidget *parent = nullptr);
    ~Pass_Form() override;

    /// Reads the registry (Oturum::kayitYolu) and opens the first company.
    /// False when the program has to end; the user was told why.
    bool load();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void paintBand();
    void connectControls();
    void Sirket_Bul();
    bool openDatabase(const QString &path);
    bool restore(const QString &database, const QString &trouble);
    void closeCompany();
    void fillUsers();
    void cutPassword();
    void SifreKontrol();
    void logIn(const QString &name, qint32 number);

    Oturum &m_oturum;
    Messages &m_messages;
    std::unique_ptr<Ui::Pass_Form> m_ui;
    std::unique_ptr<Database> m_registry;
};

} // namespace kuyum
