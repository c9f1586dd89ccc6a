#pragma once

#include "MenuStore.h"
#include "TanimEkrani.h"
#include "UsersStore.h"

#include <memory>

namespace Ui {
class Tanim_User;
}

namespace kuyum {

/// The users: their passwords, and which menu items each may use.
///
/// An ordinary user opens his own record only, and gives no right that he does
/// not have himself. Nothing is done that would leave nobody who can log in
/// and open this screen.
class Tanim_User : public TanimEkrani
{
    Q_OBJECT

public:
    explicit Tanim_User(const ScreenContext &context, QWidget *parent = nullptr);
    ~Tanim_User() override;

private:
    void setUpControls();
    bool pickKey() override;
    Found readRow() override;
    QList<RecordRows> recordRows() const override;
    bool writeRow() override;
    QString savedWhat() const override;
    bool mayRemove() override;
    bool removeRow() override;
    bool mayLeave() override;
    void emptyForm() override;

    void showUser(const Kullanici &user);
    QString noteOn(const Kullanici &user) const;
    void passwordChanged();
    void countRights();
    void toggleRight();
    void extraRightClicked();

    bool isAdministrator() const;
    bool mayBeWritten(const QString &password, const QList<qint32> &rights);
    bool isLastAdministrator();
    /// What the user can change, as it stands on the screen.
    struct Entry
    {
        QString password;
        bool user_yetki1;
        QList<qint32> rights;
        bool operator==(const Entry &) const = default;
    };
    Entry entry() const;
    void complain(const QString &text, QWidget *control);

    UsersStore m_store;
    std::unique_ptr<Ui::Tanim_User> m_ui;
    Kullanici m_user; ///< on the screen; number 0 for a new one
    Entry m_shown;    ///< as it was before the user changed it
    QString m_done;   ///< to be told when the form is empty again
};

} // namespace kuyum
