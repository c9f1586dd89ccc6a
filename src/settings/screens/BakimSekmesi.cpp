#include "BakimSekmesi.h"

#include "DosyaDuzelt.h"
#include "Guarded.h"
#include "Oturum.h"
#include "StoppableWork.h"
#include "Theme.h"
#include "ui_BakimSekmesi.h"

using namespace Qt::StringLiterals;

namespace kuyum {

static ReportTable fieldList(const QList<AlanSatiri> &alanlar)
{
    ReportTable list;
    list.columns = {{u"Name"_s}, {u"Size"_s, ReportColumnKind::Number}, {u"Type"_s}};
    for (const AlanSatiri &alan : alanlar)
        list.rows.append({{alan.Name, alan.Size, alan.Type}});
    return list;
}

BakimSekmesi::BakimSekmesi(const ScreenContext &context, QWidget *parent)
    : QWidget(parent), m_context(context), m_ui(std::make_unique<Ui::BakimSekmesi>())
{
    m_ui->setupUi(this);
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, themeColors(quiet).muted);
    m_ui->bakimNotu->setPalette(quiet);
    m_ui->Alanlar->setTable(fieldList({}));
    connect(m_ui->CmdDosyaDuzenle, &QPushButton::clicked, this,
            [this] { guarded(m_context.messages, this, [this] { CmdDosyaDuzenle(); }); });
}

BakimSekmesi::~BakimSekmesi() = default;

void BakimSekmesi::focusFirst()
{
    m_ui->CmdDosyaDuzenle->setFocus(Qt::TabFocusReason);
}

void BakimSekmesi::CmdDosyaDuzenle()
{
    Messages &messages = m_context.messages;
    if (!messages.ask(this, u"SISTEMDEKI TUM DOSYALAR DUZENLENECEK..."_s, MessageIcon::Critical))
        return;
    Oturum &oturum = m_context.oturum;
    const QStringList tables = oturum.Veritabani->tableNames();
    RepairResult result;
    try {
        StoppableWork work(this, u"Dosyaları düzenleme"_s, {});
        QString shown;
        result = TumDosyalariDuzenle(
            oturum, [&, progress = work.progress()](const QString &what, int done, int total) {
                if (what != shown) {
                    shown = what;
                    work.setText(what);
                    if (tables.contains(what))
                        showFields(what);
                }
                return progress(done, total);
            });
    } catch (const Cancelled &stopped) {
        messages.say(this, stopped.text(), MessageIcon::Information);
        return;
    }
    Q_EMIT repaired();
    messages.say(this, u"TUM DOSYALAR DUZENLENMISTIR...\n\n"_s + result.text(),
                 MessageIcon::Information);
}

void BakimSekmesi::showFields(const QString &table)
{
    m_ui->AlanlarLabel->setText(table + u" tablosunun a&lanları"_s);
    m_ui->Alanlar->setTable(fieldList(alanlar(m_context.oturum.Veritabani->tableDef(table))));
}

} // namespace kuyum
