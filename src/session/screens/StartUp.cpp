#include "StartUp.h"

#include "AnaMenu.h"
#include "DailyBackup.h"
#include "Guarded.h"
#include "LegacyPath.h"
#include "Oturum.h"
#include "Pass_Form.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kuyum {

/// Whether there is a registry, as it was named or in the form it was taken
/// over into.
static bool registryExists(const QString &path)
{
    return QFileInfo::exists(path) || QFileInfo::exists(takenOverPath(path));
}

static bool logIn(const StartUp &start)
{
    if (!registryExists(start.oturum.kayitYolu)) {
        start.messages.say(
            nullptr,
            u"Şirket kayıt dosyası bulunamadı:\n%1\n\n"
            "Dosyayı bu yere koyun ya da programı başka bir dosya ile açın:\n"
            "kuyum --sirket DOSYA"_s.arg(QDir::toNativeSeparators(start.oturum.kayitYolu)),
            MessageIcon::Critical, u"Kuyum"_s);
        return false;
    }
    Pass_Form login(start.oturum, start.messages);
    bool loaded = false;
    guarded(start.messages, nullptr, [&] { loaded = login.load(); });
    if (loaded)
        login.exec();
    return start.oturum.GirisTamam;
}

std::unique_ptr<AnaMenu> startUp(const StartUp &start, bool otherCopyRuns)
{
    if (otherCopyRuns) {
        start.messages.say(nullptr,
                           u"Uygulama Calismaktadir. Lutfen Bilgisayarinizi Kapatip, Acin."_s,
                           MessageIcon::Information);
        return nullptr;
    }
    if (!logIn(start))
        return nullptr;
    // Before anything of this day is written.
    if (!backUpDaily(start.oturum, start.messages))
        return nullptr;
    auto menu = std::make_unique<AnaMenu>(start.oturum, start.messages, start.screens);
    menu->load(start.programFolder);
    return menu;
}

} // namespace kuyum
