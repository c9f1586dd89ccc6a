#pragma once

#include "PictureBox.h"

#include <functional>
#include <QImage>

class QMimeData;

namespace kuyum {

/// Asks for the file of a picture; empty when none was chosen.
using PictureChooser = std::function<QString(QWidget *parent)>;

/// A picture box that takes new pictures: from a file, dropped from the file
/// manager or another program, or pasted with Ctrl+V. What it takes is upright
/// and no larger than print needs.
class PictureEntry : public PictureBox
{
    Q_OBJECT

public:
    explicit PictureEntry(QWidget *parent = nullptr);

    /// The program opens its file dialog; tests answer.
    void setChooser(PictureChooser chooser) { m_choose = std::move(chooser); }
    /// Asks for a file and takes it.
    void chooseFile();
    /// Shows a picture that is not stored yet, such as a camera's.
    void take(const QImage &image);

    /// Shows a stored picture; an empty path clears the box. Either way it
    /// holds no new one any more.
    void showStored(const QString &path);
    /// Whether the box shows a picture, stored or new.
    bool holdsPicture() const { return isNew() || (!path().isEmpty() && error().isEmpty()); }
    bool isNew() const { return !m_new.isNull(); }
    const QImage &newPicture() const { return m_new; }

Q_SIGNALS:
    /// What was chosen, dropped or pasted cannot be taken; the box stays as it was.
    void refused(const QString &why);
    /// Delete was pressed on the box.
    void removalAsked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void takeFile(const QString &path);
    void takeData(const QMimeData &data);
    void showNew();

    PictureChooser m_choose;
    QImage m_new;
};

} // namespace kuyum
