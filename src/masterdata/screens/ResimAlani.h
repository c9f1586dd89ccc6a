#pragma once

#include <functional>
#include <QImage>
#include <QObject>

class QPushButton;

namespace kuyum {

class Messages;
class PictureEntry;

/// Opens the camera; `Secilen` says for whom ("KALIP CEK", "MODEL CEK").
/// Returns the frame that was taken, a null image for none.
using CameraOpener = std::function<QImage(QWidget *parent, const QString &Secilen)>;

/// The picture of a definition screen's row, with its buttons: shown, taken,
/// saved and deleted the same way for molds and models.
class ResimAlani : public QObject
{
    Q_OBJECT

public:
    struct Parts
    {
        PictureEntry *box;
        QPushButton *cmdDosya; ///< takes a picture from a file
        QPushButton *cmdCek;   ///< takes one from the camera; hidden without one
        QPushButton *ResimSil;
    };

    ResimAlani(const Parts &parts, Messages &messages, QWidget *screen);

    void setCamera(const CameraOpener &open, const QString &Secilen);

    /// Shows the stored picture, and says why where it cannot be shown.
    void ResimGoster(const QString &path);
    /// Writes a picture just taken to where `target` says, asking first where a
    /// picture is there already; false when the user kept that one. `target`
    /// may throw. Whatever fails is thrown as an error which says that the row
    /// itself is saved.
    bool ResimKaydet(const std::function<QString()> &target);
    /// Deletes the picture of that code, after a question; a picture just taken
    /// is given up without one.
    void ResimSil(const QString &code, const std::function<QString()> &path);

Q_SIGNALS:
    void removalAsked();

private:
    bool write(const QString &path);

    Parts m_parts;
    Messages &m_messages;
    QWidget *m_screen;
};

} // namespace kuyum
