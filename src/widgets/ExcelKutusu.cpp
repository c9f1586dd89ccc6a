#include "ExcelKutusu.h"

#include "ExcelAktar.h"
#include "Guarded.h"

#include <QCheckBox>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace kuyum {

ExcelKutusu::ExcelKutusu(QWidget *parent)
    : QWidget(parent),
      m_excel(new QCheckBox(u"E&xcel"_s)),
      m_figures(new QCheckBox(u"&Sayılarla"_s))
{
    m_excel->setObjectName(u"Check_Excel"_s);
    m_excel->setAccessibleName(u"Raporu Excel'e aktar"_s);
    m_excel->setToolTip(u"Raporu Excel'e aktarır"_s);
    m_figures->setObjectName(u"Check_Sayilarla"_s);
    m_figures->setAccessibleName(u"Excel'e sayılarla aktar"_s);
    m_figures->setToolTip(u"Miktar ve tarihler metin olarak değil, hesaplanabilir sayılar olarak\n"
                          "gider; modellerin yanında resimleri durur"_s);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_excel);
    layout->addWidget(m_figures);
    setFocusProxy(m_excel);
    connect(m_excel, &QCheckBox::clicked, this, &ExcelKutusu::ticked);
}

void ExcelKutusu::setExport(const ExcelAktar &excel, Messages &messages, Source source)
{
    m_aktar = &excel;
    m_messages = &messages;
    m_source = std::move(source);
}

void ExcelKutusu::setTexts(const QString &excel, const QString &figures)
{
    m_excel->setText(excel);
    m_figures->setText(figures);
}

void ExcelKutusu::ticked()
{
    guarded(*m_messages, window(), [this] {
        ReportSheet sheet = m_source();
        sheet.form = m_figures->isChecked() ? SheetForm::Sayilarla : SheetForm::Metin;
        if (sheet.table.hasLines() &&
            m_messages->ask(window(), u"RAPOR EXCEL ORTAMINA ALINACAK..."_s,
                            MessageIcon::Information))
            m_aktar->aktar(window(), sheet);
    });
    m_excel->setChecked(false);
}

} // namespace kuyum
