#pragma once

#include "SiparisBasligi.h"

#include <QFrame>

class QLabel;

/// The order that a report is of, above its figures: date, number, karat and
/// customer.
class SiparisAlanlari : public QFrame
{
    Q_OBJECT

public:
    explicit SiparisAlanlari(QWidget *parent = nullptr);

    /// Nothing leaves the fields empty.
    void setOrder(const std::optional<SiparisBasligi> &siparis);

private:
    QLabel *addField(const QString &caption, const QString &name);

    QLabel *m_SipTrh;
    QLabel *m_Sipnum;
    QLabel *m_Ayar;
    QLabel *m_FirAdi;
};

/// Gives a window its size, as far as the screen allows.
void fitToScreen(QWidget &window, QSize wanted);
