#pragma once

#include "SiparisBasligi.h"

#include <QFrame>

class QHBoxLayout;
class QLabel;

namespace kuyum {

/// The order that a report is of, above its figures: date, number, karat and
/// customer.
class SiparisAlanlari : public QFrame
{
    Q_OBJECT

public:
    explicit SiparisAlanlari(QWidget *parent = nullptr);

    /// Nothing leaves the fields empty.
    void setOrder(const std::optional<SiparisBasligi> &siparis);

    /// Says that the order on the screen is not what is stored.
    void tellUnsaved() { m_not->show(); }

private:
    void addNote();
    QLabel *addField(const QString &caption, const QString &name);

    QLabel *m_SipTrh;
    QLabel *m_Sipnum;
    QLabel *m_Ayar;
    QLabel *m_FirAdi;
    QHBoxLayout *m_fields;
    QLabel *m_not;
};

/// Sets a note in the colour of what must not be overlooked.
void makeNote(QLabel &note);

} // namespace kuyum
