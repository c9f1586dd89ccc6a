#include "SiparisAlanlari.h"

#include "Dates.h"
#include "Numbers.h"
#include "Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>

using namespace Qt::StringLiterals;

SiparisAlanlari::SiparisAlanlari(QWidget *parent) : QFrame(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 0, 2, 4);
    layout->setSpacing(28);
    m_SipTrh = addField(u"Sipariş Tarihi"_s, u"SipTrh"_s);
    m_Sipnum = addField(u"Sipariş No"_s, u"Sipnum"_s);
    m_Ayar = addField(u"Ayar"_s, u"Ayar"_s);
    m_FirAdi = addField(u"Müşteri"_s, u"FirAdi"_s);
    layout->setStretch(layout->count() - 1, 1);
}

/// A small caption over the value.
QLabel *SiparisAlanlari::addField(const QString &caption, const QString &name)
{
    auto *above = new QLabel(caption);
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, themeColors(quiet).muted);
    above->setPalette(quiet);
    auto *value = new QLabel;
    value->setObjectName(name);
    value->setAccessibleName(caption);
    value->setTextFormat(Qt::PlainText);
    value->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Preferred);
    QFont bold = font();
    bold.setBold(true);
    value->setFont(bold);
    auto *field = new QVBoxLayout;
    field->setSpacing(2);
    field->addWidget(above);
    field->addWidget(value);
    static_cast<QHBoxLayout *>(layout())->addLayout(field);
    return value;
}

void SiparisAlanlari::setOrder(const std::optional<SiparisBasligi> &siparis)
{
    for (QLabel *value : {m_SipTrh, m_Sipnum, m_Ayar, m_FirAdi})
        value->clear();
    if (!siparis)
        return;
    m_SipTrh->setText(formatDate(siparis->SipTrh));
    m_Sipnum->setText(QString::number(siparis->Sipnum));
    m_Ayar->setText(plainNumber(siparis->Ayar));
    m_FirAdi->setText(siparis->FirAdi);
}

void fitToScreen(QWidget &window, QSize wanted)
{
    constexpr QSize windowFrame(10, 60);
    window.resize(wanted.boundedTo(window.screen()->availableSize() - windowFrame));
}
