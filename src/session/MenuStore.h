#pragma once

#include "Oturum.h"

#include <QList>

namespace kuyum {

/// A menu item; its number is also that of its button and of its screen.
struct MenuOgesi
{
    qint32 m_ID = 0;
    QString m_Adi;
};

/// The number of the user administration.
constexpr qint32 userMenu = 17;

/// Whether the user of this name sees every item, whatever his rights.
bool seesWholeMenu(QStringView User_Name);

/// The menu items and the users' rights to them. Throws DatabaseError.
class MenuStore
{
public:
    explicit MenuStore(Oturum &oturum) : m_oturum(oturum) {}

    /// Adds the items of a menu file that are not there yet; all or none.
    void addFrom(const QList<MenuOgesi> &items);
    /// All that there are, by their numbers.
    QList<MenuOgesi> items();
    /// What the logged-in user may use, in the order of the rows.
    QList<MenuOgesi> itemsOfUser();

private:
    Oturum &m_oturum;
};

/// The items of a menu file: on each line a number, one blank and the caption.
/// A line without a blank says nothing. The text is UTF-8 or, where it is not
/// valid as such, Windows-1254.
QList<MenuOgesi> parseMenuFile(const QByteArray &content);

} // namespace kuyum
