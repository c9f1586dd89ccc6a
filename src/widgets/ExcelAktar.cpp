#include "ExcelAktar.h"

#include "Messages.h"
#include "SpreadsheetApplication.h"

#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QProgressDialog>
#include <QStandardPaths>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QString askSheetPath(QWidget *parent, const QString &suggestion)
{
    QFileDialog dialog(parent, u"Excel dosyası olarak kaydet"_s, {}, u"Excel (*.xlsx)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"xlsx"_s);
    dialog.selectFile(suggestion);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString fileName(const ReportSheet &sheet)
{
    static const QString forbidden = u"\\/:*?\"<>|"_s;
    constexpr qsizetype longest = 80;
    QString name = sheet.baslik.isEmpty() ? sheet.table.title : sheet.baslik;
    for (QChar &character : name) {
        if (forbidden.contains(character))
            character = u' ';
    }
    name = name.simplified().left(longest).trimmed();
    return name.isEmpty() ? u"Rapor"_s : name;
}

/// A file of its own for each export, since the program may still have the
/// last one open. Those of former days are removed.
QString freshPath(const ReportSheet &sheet)
{
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::TempLocation) + u"/kuyum-excel"_s;
    if (!QDir().mkpath(folder))
        throw std::runtime_error(
            (u"Geçici klasör açılamadı: "_s + QDir::toNativeSeparators(folder)).toStdString());
    const QDir files(folder);
    for (const QFileInfo &file : files.entryInfoList({u"*.xlsx"_s}, QDir::Files)) {
        if (file.lastModified() < QDateTime::currentDateTime().addDays(-1))
            QFile::remove(file.filePath());
    }
    const QString name = fileName(sheet);
    QString path = files.filePath(name + u".xlsx"_s);
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = files.filePath(u"%1 (%2).xlsx"_s.arg(name).arg(number));
    return path;
}

} // namespace

ExcelAktar::ExcelAktar(SpreadsheetApplication &application, Messages &messages)
    : m_application(application), m_messages(messages), m_choose(askSheetPath)
{
}

void ExcelAktar::aktar(QWidget *parent, const ReportSheet &sheet) const
{
    if (m_application.isInstalled()) {
        const QString path = freshPath(sheet);
        if (!write(parent, sheet, path) || m_application.open(path))
            return;
        QFile::remove(path);
    }
    m_messages.say(parent, u"You need Microsoft Excel to use this function"_s,
                   MessageIcon::Exclamation, u"Print to Excel"_s);
    save(parent, sheet);
}

void ExcelAktar::save(QWidget *parent, const ReportSheet &sheet) const
{
    if (!m_messages.ask(parent, u"Rapor Excel dosyası olarak kaydedilsin mi ?"_s,
                        MessageIcon::Information))
        return;
    const QString path = m_choose(parent, fileName(sheet) + u".xlsx"_s);
    if (!path.isEmpty() && write(parent, sheet, path))
        m_messages.say(parent, u"Excel dosyası kaydedildi:\n"_s + QDir::toNativeSeparators(path),
                       MessageIcon::Information);
}

/// False when the user stopped it.
bool ExcelAktar::write(QWidget *parent, const ReportSheet &sheet, const QString &path) const
{
    constexpr int quickMilliseconds = 500;
    QProgressDialog progress(u"Excel dosyası hazırlanıyor..."_s, u"Durdur"_s, 0, 0, parent);
    progress.setWindowTitle(sheet.table.title);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(quickMilliseconds);
    progress.setAutoReset(false);
    return writeSheet(sheet, path, [&progress](int done, int total) {
        progress.setMaximum(total);
        progress.setValue(done);
        return !progress.wasCanceled();
    });
}

} // namespace kuyum
