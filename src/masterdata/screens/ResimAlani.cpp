#include "ResimAlani.h"

#include "Guarded.h"
#include "PictureEntry.h"
#include "PictureFiles.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

ResimAlani::ResimAlani(const Parts &parts, Messages &messages, QWidget *screen)
    : QObject(screen), m_parts(parts), m_messages(messages), m_screen(screen)
{
    connect(m_parts.box, &PictureEntry::refused, this, [this](const QString &why) {
        m_messages.say(m_screen, why, MessageIcon::Exclamation, u"Resim"_s);
    });
    connect(m_parts.box, &PictureEntry::removalAsked, this, &ResimAlani::removalAsked);
    connect(m_parts.ResimSil, &QPushButton::clicked, this, &ResimAlani::removalAsked);
    connect(m_parts.cmdDosya, &QPushButton::clicked, m_parts.box, &PictureEntry::chooseFile);
    m_parts.cmdCek->hide();
}

void ResimAlani::setCamera(const CameraOpener &open, const QString &Secilen)
{
    m_parts.cmdCek->setVisible(bool(open));
    if (!open)
        return;
    connect(m_parts.cmdCek, &QPushButton::clicked, this, [this, open, Secilen] {
        guarded(m_messages, m_screen, [&] {
            if (const QImage frame = open(m_screen, Secilen); !frame.isNull())
                m_parts.box->take(frame);
        });
    });
}

void ResimAlani::ResimGoster(const QString &path)
{
    m_parts.box->showStored(path);
    if (const QString error = m_parts.box->error(); !error.isEmpty())
        m_messages.say(m_screen, error);
}

bool ResimAlani::ResimKaydet(const std::function<QString()> &target)
{
    try {
        return write(target());
    } catch (const std::exception &error) {
        throw std::runtime_error(
            (u"KAYIT YAPILDI, RESİM KAYDEDİLEMEDİ.\n\n"_s + QString::fromUtf8(error.what()))
                .toStdString());
    }
}

bool ResimAlani::write(const QString &path)
{
    if (QFile::exists(path) &&
        !m_messages.ask(m_screen, u"Resim Mevcut. Uzerine Yazılsınmı?"_s, MessageIcon::Exclamation,
                        u"Resim Kayıt"_s, MessageAnswer::No))
        return false;
    // A picture that was only shown is that file already; writing it once more
    // would cost it some of its quality.
    if (m_parts.box->isNew())
        savePicture(m_parts.box->newPicture(), path);
    return true;
}

void ResimAlani::ResimSil(const QString &code, const std::function<QString()> &path)
{
    if (m_parts.box->isNew()) {
        ResimGoster(path());
        return;
    }
    const QString file = path();
    if (file.isEmpty() ||
        !m_messages.ask(m_screen, code + u" KODLU RESIM SILINECEK EMINMISINIZ..?"_s,
                        MessageIcon::Exclamation, u"RESIM SILME"_s, MessageAnswer::No))
        return;
    if (QFile picture(file); !picture.remove()) {
        throw std::runtime_error((u"Resim silinemedi: "_s + QDir::toNativeSeparators(file) + u'\n' +
                                  picture.errorString())
                                     .toStdString());
    }
    ResimGoster(path());
}

} // namespace kuyum
