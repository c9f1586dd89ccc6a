#include "DatabaseOpening.h"

#include "Integrity.h"
#include "LegacyPath.h"
#include "Messages.h"
#include "OpeningNotes.h"
#include "TakeOverWindow.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace kuyum {

std::unique_ptr<Database> openTakenOver(QWidget *parent, Messages &messages, const QString &path,
                                        DatabaseOpener open)
{
    std::unique_ptr<TakeOverWindow> window;
    const OpenablePath openable = ensureTakenOver(path, [&](TakeOver &takeOver) {
        window = std::make_unique<TakeOverWindow>(takeOver, parent);
        window->show();
    });
    window.reset();

    std::unique_ptr<Database> db = open(openable.path);
    constexpr std::chrono::milliseconds unnoticed(300);
    refuseDamaged(*db, unnoticed);
    if (openable.legacyChanged) {
        messages.say(parent,
                     u"%1\n\nBu eski dosya aktarıldıktan sonra değiştirilmiş. O günden sonra eski "
                     "programda girilenler burada görünmez; program aktarılmış dosya ile "
                     "çalışmaya devam eder:\n\n%2"_s.arg(QDir::toNativeSeparators(path),
                                                         QDir::toNativeSeparators(openable.path)),
                     MessageIcon::Exclamation, u"Eski dosya değişmiş"_s);
    }
    const QStringList notes = untoldNotes(*db);
    if (!notes.isEmpty()) {
        messages.say(parent,
                     u"%1\n\nBu dosyada görülen ve bilmeniz gerekenler:\n\n%2"_s.arg(
                         QDir::toNativeSeparators(openable.path), notesText(notes)),
                     MessageIcon::Exclamation, u"Dikkat"_s);
        markNotesTold(*db);
    }
    return db;
}

} // namespace kuyum
