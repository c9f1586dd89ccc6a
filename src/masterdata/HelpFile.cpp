#include "HelpFile.h"

#include "Dates.h"
#include "Windows1254.h"

#include <QDir>
#include <QSaveFile>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

[[noreturn]] void refuse(const QString &what, const QFileDevice &file)
{
    const QString text = u"%1: %2 (%3)"_s.arg(what, file.fileName(), file.errorString());
    throw std::runtime_error(text.toStdString());
}

} // namespace

HelpFile::HelpFile(const QString &registryPath)
{
    const QDir folder = QFileInfo(registryPath).absoluteDir();
    const QString name = u"SiparisHelp.txt"_s;
    // Name filters find a file that came in other letters from elsewhere.
    const QStringList found = folder.entryList({name}, QDir::Files);
    m_path = folder.filePath(found.isEmpty() || found.contains(name) ? name : found.first());
}

QByteArray HelpFile::bytes() const
{
    QFile file(m_path);
    if (!file.exists())
        return {};
    if (!file.open(QIODevice::ReadOnly))
        refuse(u"Yardım dosyası okunamadı"_s, file);
    return file.readAll();
}

QStringList HelpFile::lines() const
{
    QString text = decodedText(bytes());
    text.replace(u"\r\n"_s, u"\n"_s);
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.isEmpty() ? QStringList() : text.split(u'\n');
}

QString HelpFile::append(QDate date, const QString &text)
{
    const QByteArray present = bytes();
    const TextCode code = textCodeOf(present);
    const QString lineEnd = present.contains("\r\n") ? u"\r\n"_s : u"\n"_s;
    const bool openEnd = !present.isEmpty() && !present.endsWith('\n');
    QString line = formatDate(date) + u"  "_s + text;
    const QString added = (openEnd ? lineEnd : QString()) + line + lineEnd;

    const std::optional<QByteArray> encoded = encodedText(added, code);
    // Text that the file's code has no letters for turns the file into UTF-8.
    // Either way the file is replaced in one step, so it is never half written.
    const QByteArray whole =
        encoded ? present + *encoded : decodedText(present).toUtf8() + added.toUtf8();
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(whole) != whole.size() || !file.commit())
        refuse(u"Yardım dosyasına yazılamadı"_s, file);
    return line;
}

} // namespace kuyum
