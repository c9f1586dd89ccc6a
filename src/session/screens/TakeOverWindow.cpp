#include "TakeOverWindow.h"

#include "TakeOver.h"

#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kuyum {

TakeOverWindow::TakeOverWindow(TakeOver &takeOver, QWidget *parent)
    : QDialog(parent),
      m_takeOver(takeOver),
      m_table(new QLabel(this)),
      m_bar(new QProgressBar(this))
{
    setObjectName(u"TakeOverWindow"_s);
    setWindowTitle(u"Eski dosya aktarılıyor"_s);
    setWindowModality(Qt::ApplicationModal);
    setMinimumWidth(460);

    auto *file = new QLabel(QDir::toNativeSeparators(takeOver.source()), this);
    file->setWordWrap(true);
    file->setTextFormat(Qt::PlainText);
    m_table->setTextFormat(Qt::PlainText);
    m_table->setText(u"Dosya okunuyor..."_s);
    m_bar->setRange(0, 1000);
    m_bar->setAccessibleName(u"İlerleme"_s);
    auto *stop = new QPushButton(u"&Durdur"_s, this);
    stop->setObjectName(u"cmdvazgec"_s);
    stop->setAutoDefault(false);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(file);
    layout->addWidget(m_bar);
    layout->addWidget(m_table);
    layout->addWidget(stop, 0, Qt::AlignRight);

    connect(stop, &QPushButton::clicked, this, &QDialog::reject);
    connect(&takeOver, &TakeOver::progressed, this, &TakeOverWindow::showProgress);
}

void TakeOverWindow::reject()
{
    m_table->setText(u"Durduruluyor..."_s);
    m_takeOver.cancel();
}

void TakeOverWindow::showProgress(int permille, const QString &table)
{
    m_bar->setValue(permille);
    if (!table.isEmpty())
        m_table->setText(table);
}

} // namespace kuyum
