#include "HelpFile.h"
#include "TestRegistry.h"
#include "Windows1254.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

class HelpFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }

    void makesTheFileWithItsFirstLine()
    {
        HelpFile help(m_dir->filePath(u"sirket.kuyum"_s));
        QCOMPARE(help.lines(), QStringList());
        QCOMPARE(help.append({2025, 3, 1}, u"Önce kalıbı çağır"_s),
                 u"01.03.2025  Önce kalıbı çağır"_s);
        QCOMPARE(content(), u"01.03.2025  Önce kalıbı çağır\n"_s.toUtf8());
    }

    void goesOnInTheFilesOwnCode()
    {
        write(u"IŞIK\r\n\r\nğüş"_s, TextCode::Windows1254);
        HelpFile help(m_dir->filePath(u"sirket.mdb"_s));
        QCOMPARE(help.lines(), (QStringList{u"IŞIK"_s, QString(), u"ğüş"_s}));
        help.append({2025, 3, 1}, u"İnci"_s);
        QCOMPARE(content(),
                 encodedText(u"IŞIK\r\n\r\nğüş\r\n01.03.2025  İnci\r\n"_s, TextCode::Windows1254));

        write(u"IŞIK\n"_s, TextCode::Utf8);
        help.append({2025, 3, 1}, u"İnci"_s);
        QCOMPARE(content(), u"IŞIK\n01.03.2025  İnci\n"_s.toUtf8());
    }

    void losesNoLetterThatTheCodeLacks()
    {
        write(u"ğüş\n"_s, TextCode::Windows1254);
        HelpFile help(m_dir->filePath(u"sirket.mdb"_s));
        help.append({2025, 3, 1}, u"Ω"_s);
        QCOMPARE(help.lines(), (QStringList{u"ğüş"_s, u"01.03.2025  Ω"_s}));
    }

    void saysWhatCannotBeWritten()
    {
        QVERIFY(QDir(m_dir->path()).mkdir(u"SiparisHelp.txt"_s));
        HelpFile help(m_dir->filePath(u"sirket.mdb"_s));
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, help.append({2025, 3, 1}, u"x"_s));
    }

private:
    QString path() const { return m_dir->filePath(u"SiparisHelp.txt"_s); }

    void write(const QString &text, TextCode code)
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(encodedText(text, code).value());
    }

    QByteArray content()
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

KUYUM_TEST(HelpFileTest)

} // namespace kuyum

#include "HelpFileTest.moc"
