#include "Dosya_Yenile.h"

#include "EmptyDatabase.h"
#include "EntryControls.h"
#include "Guarded.h"
#include "Oturum.h"
#include "RefreshSource.h"
#include "RegistryPaths.h"
#include "StoppableWork.h"
#include "TakeOver.h"
#include "Theme.h"
#include "ui_Dosya_Yenile.h"
#include "WindowSize.h"
#include "Yenileme.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// What a user must type to reach the commands.
constexpr auto accessCode = "SILV7319"_L1;

const QString &missingSource()
{
    static const QString text = u" NOLU HATA. LUTFEN YENILEME DISKETINI TAKIN..."_s;
    return text;
}

const QString &wrongPlace()
{
    static const QString text = u" NOLU HATA. DOSYA YOLUNU KONTROL EDIN..."_s;
    return text;
}

/// The engine's failures that mean a place which is not there, cannot be read
/// or not be written to, rather than something in the file.
bool isUnreachable(const DatabaseError &error)
{
    constexpr int noPermission = 3;
    constexpr int readOnly = 8;
    constexpr int inputOutput = 10;
    return QList<int>{noPermission, readOnly, inputOutput, DatabaseError::cannotOpen}.contains(
        error.number());
}

QString openSourceDialog(QWidget *parent, const QString &start)
{
    return QFileDialog::getOpenFileName(parent, u"Karşılaştırılacak dosya"_s, start,
                                        u"MS Access Dosyaları (*.MDB *.mdb);;"
                                        "Kuyum Dosyaları (*.kuyum);;Bütün Dosyalar (*)"_s);
}

/// Asks before it gives the name of a file that is there.
QString saveTargetDialog(QWidget *parent, const QString &start)
{
    QFileDialog dialog(parent, u"Boş veri tabanı"_s, QFileInfo(start).path(),
                       u"Kuyum Dosyaları (*.kuyum)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"kuyum"_s);
    dialog.selectFile(QFileInfo(start).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

ReportTable differences(const QList<TableComparison> &tables)
{
    ReportTable report;
    report.columns = {
        {u"Tablo"_s}, {u"Alan"_s}, {u"Burada"_s}, {u"Seçilen Dosyada"_s}, {u"Yapılacak"_s}};
    const auto add = [&report](const QStringList &texts) {
        report.rows.append({QVariantList(texts.begin(), texts.end())});
    };
    for (const TableComparison &comparison : tables) {
        const QString &name = comparison.name;
        if (comparison.isNew) {
            const QString fields = u"%1 alan"_s.arg(comparison.theirs.fields.size());
            add({name, u""_s, u"yok"_s, fields, u"tablo açılır"_s});
        }
        for (const FieldDef &field : comparison.newFields)
            add({name, field.name, u"yok"_s, typeText(field), u"alan eklenir"_s});
        const auto addAll = [&](const QList<FieldDifference> &differences, const QString &fate) {
            for (const FieldDifference &one : differences)
                add({name, one.ours.name, typeText(one.ours), typeText(one.theirs), fate});
        };
        addAll(comparison.widened, u"genişletilir"_s);
        addAll(comparison.left, u"olduğu gibi kalır"_s);
    }
    return report;
}

} // namespace

Dosya_Yenile::Dosya_Yenile(const ScreenContext &context, QWidget *parent)
    : QDialog(parent, Qt::Window),
      m_context(context),
      m_ui(std::make_unique<Ui::Dosya_Yenile>()),
      m_table(new QLabel(this)),
      m_chooseSource(openSourceDialog),
      m_chooseTarget(saveTargetDialog)
{
    m_ui->setupUi(this);
    fitToScreen(*this, QSize(1000, 640));
    m_ui->durum->addPermanentWidget(m_table);
    m_ui->FarklarLabel->setBuddy(m_ui->Farklar->rows());
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, themeColors(quiet).muted);
    m_ui->kilit->setPalette(quiet);
    connectControls();
    setLocked(true);
    m_ui->Sifre->setFocus();
}

Dosya_Yenile::~Dosya_Yenile() = default;

void Dosya_Yenile::connectControls()
{
    const auto bind = [this](QPushButton *button, void (Dosya_Yenile::*action)()) {
        button->setAutoDefault(false); // Enter on the code must not press a button
        connect(button, &QPushButton::clicked, this, [this, action] {
            guarded(m_context.messages, this, [this, action] { (this->*action)(); });
        });
    };
    bind(m_ui->cmdGozat, &Dosya_Yenile::Gozat);
    bind(m_ui->Yenile_Cmd, &Dosya_Yenile::Yenile);
    bind(m_ui->Disket_Cmd, &Dosya_Yenile::Disket);
    m_ui->Son_Cmd->setAutoDefault(false);
    connect(m_ui->Son_Cmd, &QPushButton::clicked, this, &QDialog::reject);
    selectOnEntry(*m_ui->Sifre);
}

void Dosya_Yenile::keyPressEvent(QKeyEvent *event)
{
    // Held down, it would press what comes after the code.
    if (event->isAutoRepeat() && isEnter(*event))
        return;
    if (isEnter(*event))
        guarded(m_context.messages, this, [this] { enterPressed(); });
    else
        QDialog::keyPressEvent(event);
}

void Dosya_Yenile::enterPressed()
{
    QWidget *from = focusWidget();
    if (from == m_ui->Sifre)
        Sifre_Kontrol();
    else if (auto *button = qobject_cast<QPushButton *>(from))
        button->click();
    else
        focusNextChild();
}

// The lock

void Dosya_Yenile::setLocked(bool locked)
{
    m_ui->Sifre->setEnabled(locked);
    for (QWidget *control : std::initializer_list<QWidget *>{
             m_ui->dosya, m_ui->cmdGozat, m_ui->Tablolar, m_ui->Farklar, m_ui->Disket_Cmd})
        control->setEnabled(!locked);
    m_ui->Yenile_Cmd->setEnabled(!locked && !m_source.isEmpty());
    m_ui->kilit->setText(locked ? u"Komutlar kilitli: şifreyi yazıp Enter'a basın."_s
                                : u"Komutlar açık."_s);
}

void Dosya_Yenile::Sifre_Kontrol()
{
    if (m_ui->Sifre->text() != accessCode) {
        m_context.messages.say(this, u"Sifre Hatali ....."_s, MessageIcon::Critical);
        TumunuSec(*m_ui->Sifre);
        return;
    }
    setLocked(false);
    m_ui->cmdGozat->setFocus(Qt::TabFocusReason);
}

// The chosen file

void Dosya_Yenile::Gozat()
{
    const QString start = RegistryPaths(m_context.oturum.kayitYolu).resolve(u"C:\\"_s);
    const QString path = m_chooseSource(this, start);
    if (path.isEmpty())
        return;
    try {
        const QList<TableDef> tables = readSource(path);
        m_source = path;
        m_ui->dosya->setText(QDir::toNativeSeparators(path));
        Combo_Doldur(tables);
        setLocked(false);
        m_ui->Yenile_Cmd->setFocus(Qt::TabFocusReason);
    } catch (const Cancelled &) {
        tell(u"Dosyanın okunması durduruldu."_s);
    } catch (const DatabaseError &error) {
        tellFailure(error, missingSource());
    }
}

QList<TableDef> Dosya_Yenile::readSource(const QString &path)
{
    StoppableWork work(this, windowTitle(), u"Dosya okunuyor..."_s);
    const std::function<bool(int, int)> progress = work.progress();
    const auto watch = [&](TakeOver &takeOver) {
        connect(&takeOver, &TakeOver::progressed, this, [&](int permille) {
            if (!progress(permille, 1000))
                takeOver.cancel();
        });
    };
    return readRefreshSource(path, *m_context.oturum.Veritabani, watch).tables;
}

void Dosya_Yenile::Combo_Doldur(const QList<TableDef> &chosen)
{
    const QList<TableComparison> tables = Kontrol_Et(*m_context.oturum.Veritabani, chosen);
    m_ui->Tablolar->clear();
    for (const TableComparison &comparison : tables)
        m_ui->Tablolar->addItem(comparison.text());
    m_ui->Tablolar->setCurrentRow(0);
    const ReportTable report = differences(tables);
    m_ui->Farklar->setTable(report);
    tell(report.rows.isEmpty() ? u"%1 tablo karşılaştırıldı, fark yok."_s.arg(tables.size())
                               : u"%1 tablo karşılaştırıldı, %2 fark var."_s.arg(tables.size())
                                     .arg(report.rows.size()));
}

// The two commands

void Dosya_Yenile::Yenile()
{
    QList<TableDef> tables;
    try {
        tables =
            readSource(m_source); // it may have been changed, or taken out, since it was chosen
    } catch (const Cancelled &) {
        tell(u"Dosyanın okunması durduruldu."_s);
        return;
    } catch (const DatabaseError &error) {
        tellFailure(error, missingSource());
        return;
    }
    const QString working = u"TABLOLAR GUNCELLENIYOR... LUTFEN BEKLEYIN..."_s;
    tell(working);
    try {
        StoppableWork work(this, windowTitle(), working);
        Yenileme yenileme(
            *m_context.oturum.Veritabani,
            [&, progress = work.progress()](const QString &what, int done, int total) {
                tell(working, what);
                return progress(done, total);
            },
            [this](const QString &table, const QString &reason) {
                return goesOnWithout(table, reason);
            });
        const RefreshResult result = yenileme.yenile(tables);
        Combo_Doldur(tables);
        tell(u"ISLEM TAMAMLANDI..."_s);
        m_context.messages.say(this, u"ISLEM TAMAMLANDI...\n\n"_s + result.text(),
                               MessageIcon::Information);
    } catch (const Cancelled &stopped) {
        tell(stopped.text());
        m_context.messages.say(this, stopped.text(), MessageIcon::Information);
    } catch (const DatabaseError &error) {
        tell(error.text());
        throw;
    }
}

bool Dosya_Yenile::goesOnWithout(const QString &table, const QString &reason)
{
    return m_context.messages.ask(
        this,
        u"%1 TABLOSU GÜNCELLENEMEDİ:\n%2\n\nBU TABLO OLDUĞU GİBİ KALARAK DİĞERLERİYLE DEVAM "
        "EDİLSİN Mİ ?\n\nHayır denirse hiçbir tablo değiştirilmez."_s.arg(table, reason),
        MessageIcon::Exclamation, u"HATA"_s, MessageAnswer::No);
}

void Dosya_Yenile::Disket()
{
    Oturum &oturum = m_context.oturum;
    const QString folder = QFileInfo(oturum.Transferyolu).isDir()
                               ? oturum.Transferyolu
                               : QFileInfo(oturum.Veritabani->path()).path();
    const QString target = m_chooseTarget(this, QDir(folder).filePath(u"bos.kuyum"_s));
    if (target.isEmpty())
        return;
    try {
        StoppableWork work(this, windowTitle(), u"Boş veri tabanı yapılıyor..."_s);
        makeEmptyDatabase(
            oturum, target,
            [&, progress = work.progress()](const QString &table, int done, int total) {
                tell(u"Boş veri tabanı yapılıyor..."_s, table);
                return progress(done, total);
            });
    } catch (const CompanyLost &lost) {
        // Without the company nothing behind this screen can work.
        sayUnexpected(m_context.messages, this, lost);
        reject();
        QCoreApplication::exit(1);
        return;
    } catch (const Cancelled &) {
        tell(u"Durduruldu, yeni dosya yapılmadı."_s);
        return;
    } catch (const DatabaseError &error) {
        tellFailure(error, wrongPlace());
        return;
    }
    tell(QDir::toNativeSeparators(target));
    m_context.messages.say(this, u"ISLEM TAMAMLANDI..."_s, MessageIcon::Information);
}

/// A place that cannot be reached has its own text with the engine's number;
/// the reason in words stands in the status bar.
void Dosya_Yenile::tellFailure(const DatabaseError &error, const QString &unreachable)
{
    tell(error.text());
    if (!isUnreachable(error))
        throw error;
    m_context.messages.say(this, QString::number(error.number()) + unreachable,
                           MessageIcon::Critical);
}

void Dosya_Yenile::tell(const QString &text, const QString &table)
{
    m_ui->durum->showMessage(text);
    m_table->setText(table);
}

} // namespace kuyum
