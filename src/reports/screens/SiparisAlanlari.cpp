#include "SiparisAlanlari.h"

#include "Dates.h"
#include "Numbers.h"
#include "Theme.h"

#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace kuyum {

SiparisAlanlari::SiparisAlanlari(QWidget *parent) : QFrame(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 0, 2, 4);
    layout->setSpacing(8);
    m_fields = new QHBoxLayout;
    m_fields->setSpacing(28);
    layout->addLayout(m_fields);
    m_SipTrh = addField(u"Sipariş Tarihi"_s, u"SipTrh"_s);
    m_Sipnum = addField(u"Sipariş No"_s, u"Sipnum"_s);
    m_Ayar = addField(u"Ayar"_s, u"Ayar"_s);
    m_FirAdi = addField(u"Müşteri"_s, u"FirAdi"_s);
    m_fields->setStretch(m_fields->count() - 1, 1);
    addNote();
}

void SiparisAlanlari::addNote()
{
    m_not = new QLabel(
        u"Siparişte kaydedilmemiş değişiklikler var; rapor siparişin kayıtlı haline göredir."_s);
    m_not->setObjectName(u"kayitNotu"_s);
    m_not->setAccessibleName(u"Kaydedilmemiş değişiklik"_s);
    makeNote(*m_not);
    layout()->addWidget(m_not);
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
    m_fields->addLayout(field);
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

void makeNote(QLabel &note)
{
    QPalette palette = note.palette();
    palette.setColor(QPalette::WindowText, themeColors(palette).mark);
    note.setPalette(palette);
    note.setWordWrap(true);
    note.hide();
}

} // namespace kuyum
