#include "SpreadsheetApplication.h"

#include <QProcess>
#include <QStandardPaths>

#ifdef Q_OS_WIN
#include <QDesktopServices>
#include <QSettings>
#include <QUrl>
#endif

using namespace Qt::StringLiterals;

namespace kuyum {

#ifdef Q_OS_WIN

bool InstalledSpreadsheet::isInstalled() const
{
    const QSettings kinds(u"HKEY_CLASSES_ROOT\\.xlsx"_s, QSettings::NativeFormat);
    return !kinds.value(u"Default"_s).toString().isEmpty() ||
           kinds.childGroups().contains(u"OpenWithProgids"_s);
}

bool InstalledSpreadsheet::open(const QString &path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

#else

static QString spreadsheetProgram()
{
    // By name: what the desktop opens such files with may be an archiver.
    for (const QString &name : {u"localc"_s, u"libreoffice"_s, u"soffice"_s, u"gnumeric"_s,
                                u"calligrasheets"_s, u"et"_s}) {
        if (const QString path = QStandardPaths::findExecutable(name); !path.isEmpty())
            return path;
    }
    return {};
}

bool InstalledSpreadsheet::isInstalled() const
{
    return !spreadsheetProgram().isEmpty();
}

bool InstalledSpreadsheet::open(const QString &path)
{
    const QString program = spreadsheetProgram();
    return !program.isEmpty() && QProcess::startDetached(program, {path});
}

#endif

} // namespace kuyum
