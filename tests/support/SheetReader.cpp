#include "SheetReader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

QByteArray output(const QString &program, const QStringList &arguments)
{
    constexpr int longest = 120'000;
    QProcess process;
    // What the file holds is asked for, not how the tester's country shows it.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(longest) || process.exitCode() != 0)
        qWarning("%s: %s", qPrintable(program), process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

/// Fields between tabs, in quotes where they hold one.
QStringList fields(const QString &line)
{
    QStringList result;
    QString field;
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == u'"' && quoted && i + 1 < line.size() && line[i + 1] == u'"')
            field += line[++i];
        else if (line[i] == u'"')
            quoted = !quoted;
        else if (line[i] == u'\t' && !quoted)
            result.append(std::exchange(field, {}));
        else
            field += line[i];
    }
    result.append(field);
    return result;
}

} // namespace

QList<QStringList> sheetCells(const QString &path)
{
    // Tabs, quotes, UTF-8, cells as they are shown.
    const QString filter = u"csv:Text - txt - csv (StarCalc):9,34,76,1,,1033,false,true"_s;
    const QTemporaryDir folder;
    const QString profile = QUrl::fromLocalFile(folder.filePath(u"profile"_s)).toString();
    output(u"soffice"_s, {u"-env:UserInstallation="_s + profile, u"--headless"_s, u"--convert-to"_s,
                          filter, u"--outdir"_s, folder.path(), path});
    QFile file(folder.filePath(QFileInfo(path).completeBaseName() + u".csv"_s));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QStringList> rows;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts))
        rows.append(fields(line));
    return rows;
}

QByteArray sheetPart(const QString &path, const QString &part)
{
    return output(u"unzip"_s, {u"-p"_s, path, part});
}

} // namespace kuyum
