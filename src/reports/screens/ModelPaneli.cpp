#include "ModelPaneli.h"

#include "ReportPictures.h"
#include "ui_ModelPaneli.h"
#include "UretimStore.h"

#include <QTableView>

using namespace Qt::StringLiterals;

namespace kuyum {

constexpr int leastGridHeight = 40;

ModelPaneli::ModelPaneli(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ModelPaneli>())
{
    m_ui->setupUi(this);
    QFont bold = font();
    bold.setBold(true);
    m_ui->modelAdi->setFont(bold);
    // On a small screen the tables scroll rather than push the window off it.
    for (RaporGrid *grid : {m_ui->Kaliplar, m_ui->Taslar})
        grid->rows()->setMinimumHeight(leastGridHeight);
}

ModelPaneli::~ModelPaneli() = default;

void ModelPaneli::goster(const QString &model, const QString &KisaAD)
{
    const UretimStore store(*m_oturum);
    const bool any = !model.trimmed().isEmpty();
    QString ad = model.trimmed();
    const QStringList tipler = any ? store.modelTipleri(model) : QStringList();
    if (!tipler.isEmpty())
        ad += u" ("_s + tipler.join(u", "_s) + u')';
    m_ui->modelAdi->setText(ad);
    m_ui->Resim->showFile(any ? reportPicture(*m_oturum, model, KisaAD) : QString());
    m_ui->Kaliplar->setTable(
        malzemeTable(u"KALIP"_s, any ? store.kaliplar(model) : QList<UretimMalzemesi>()));
    m_ui->Taslar->setTable(
        malzemeTable(u"TAŞ"_s, any ? store.taslar(model) : QList<UretimMalzemesi>()));
}

} // namespace kuyum
