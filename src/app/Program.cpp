#include "Program.h"

#include "AnaMenu.h"
#include "CommandLine.h"
#include "Display.h"
#include "Emblem.h"
#include "EntryControls.h"
#include "Guarded.h"
#include "MenuTable.h"
#include "Oturum.h"
#include "OutputPlace.h"
#include "RegistryPaths.h"
#include "ScreenServices.h"
#include "SingleInstance.h"
#include "StartUp.h"
#include "Theme.h"
#include "TypedChoice.h"
#include "WheelGuard.h"
#include "WindowSize.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// The last net under every window: an error that a handler let through ends
/// that handler and not the program.
class Application : public QApplication
{
public:
    Application(int &argc, char **argv, Messages &messages)
        : QApplication(argc, argv), m_messages(messages)
    {
    }

    bool notify(QObject *receiver, QEvent *event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception &error) {
            sayOnce(error);
            return false;
        }
    }

private:
    /// A window that fails while it is painted would fail again behind every
    /// box that says so.
    void sayOnce(const std::exception &error)
    {
        if (m_saying)
            return;
        m_saying = true;
        sayUnexpected(m_messages, activeWindow(), error);
        m_saying = false;
    }

    Messages &m_messages;
    bool m_saying = false;
};

void speakTurkish(QApplication &application, QTranslator &translator)
{
    const QLocale turkish(QLocale::Turkish, QLocale::Turkey);
    QLocale::setDefault(turkish);
    if (translator.load(turkish, u"qtbase"_s, u"_"_s,
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        application.installTranslator(&translator);
}

/// Nothing when the words on the command line are off.
std::optional<QString> registryOf(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption sirket(u"sirket"_s, {}, u"DOSYA"_s);
    parser.addOption(sirket);
    if (!parser.parse(arguments) || !parser.positionalArguments().isEmpty())
        return std::nullopt;
    if (!parser.isSet(sirket))
        return RegistryPaths::defaultRegistryFile();
    if (parser.value(sirket).isEmpty())
        return std::nullopt;
    return QFileInfo(QDir::fromNativeSeparators(writtenPath(parser.value(sirket))))
        .absoluteFilePath();
}

int runSession(QApplication &application, Messages &messages, const QString &registry)
{
    const SingleInstance instance;
    Oturum oturum;
    oturum.kayitYolu = registry;
    ScreenServices services(oturum, messages);
    rememberWindows(application, services.settings);
    const std::unique_ptr<AnaMenu> menu =
        startUp({.oturum = oturum,
                 .messages = messages,
                 .screens = menuTable(services),
                 .programFolder = QCoreApplication::applicationDirPath()},
                instance.otherCopyRuns());
    if (menu == nullptr)
        return 0;
    menu->show();
    return application.exec();
}

int sayWrongUsage()
{
    printError(usageText());
    return exitWrongUsage;
}

int refuseWithoutDisplay(int &argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (!registryOf(QCoreApplication::arguments()).has_value())
        return sayWrongUsage();
    printError(u"Pencere açılamıyor: bu oturumda ekran yok."_s);
    return exitRefused;
}

} // namespace

int runProgram(int &argc, char **argv)
{
    if (!hasDisplay())
        return refuseWithoutDisplay(argc, argv);
    MessageBoxes messages;
    QCoreApplication::setApplicationName(u"kuyum"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(KUYUM_VERSION));
    Application application(argc, argv, messages);
    const std::optional<QString> registry = registryOf(QCoreApplication::arguments());
    if (!registry.has_value())
        return sayWrongUsage();
    QTranslator translator;
    speakTurkish(application, translator);
    applyTheme(application);
    ignoreIdleMnemonics(application);
    chooseEntriesAsTyped(application);
    guardBoxesFromWheel(application);
    QGuiApplication::setWindowIcon(emblemIcon());
    return runSession(application, messages, *registry);
}

} // namespace kuyum
