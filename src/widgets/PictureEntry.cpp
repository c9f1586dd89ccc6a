#include "PictureEntry.h"

#include "EntryControls.h"
#include "PictureFiles.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QPainter>
#include <QStyleOptionFocusRect>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// A page's whole width at 300 dots per inch; a camera's full size would only
/// make the folder large and every list slow.
constexpr QSize largestKept(2500, 2500);

QString localFile(const QMimeData &data)
{
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            return url.toLocalFile();
    }
    return {};
}

QString openPictureDialog(QWidget *parent)
{
    return QFileDialog::getOpenFileName(parent, u"Resim seç"_s, {},
                                        u"Resimler (*.jpg *.jpeg *.png *.bmp *.gif)"_s);
}

} // namespace

PictureEntry::PictureEntry(QWidget *parent) : PictureBox(parent), m_choose(openPictureDialog)
{
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setToolTip(u"Resim dosyası buraya sürüklenebilir; Enter dosya seçer, "
               "Ctrl+V kopyalanmış resmi alır, Delete resmi siler."_s);
}

void PictureEntry::chooseFile()
{
    if (const QString path = m_choose(window()); !path.isEmpty())
        takeFile(path);
}

void PictureEntry::take(const QImage &image)
{
    const PictureResult result = fitPicture(image, largestKept);
    if (result.image.isNull()) {
        Q_EMIT refused(result.error);
        return;
    }
    m_new = result.image;
    showNew();
}

void PictureEntry::takeFile(const QString &path)
{
    const PictureResult result = loadPicture(path, largestKept);
    if (result.image.isNull())
        Q_EMIT refused(result.error);
    else
        take(result.image);
}

/// A file manager hands over the file's place, a browser or an editor the
/// picture itself.
void PictureEntry::takeData(const QMimeData &data)
{
    if (const QString file = localFile(data); !file.isEmpty())
        takeFile(file);
    else
        take(qvariant_cast<QImage>(data.imageData()));
}

void PictureEntry::showStored(const QString &path)
{
    m_new = {};
    showFile(path);
}

void PictureEntry::showNew()
{
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap = QPixmap::fromImage(fitPicture(m_new, contentsRect().size() * ratio).image);
    pixmap.setDevicePixelRatio(ratio);
    setPixmap(pixmap);
}

void PictureEntry::keyPressEvent(QKeyEvent *event)
{
    const bool removes = event->key() == Qt::Key_Delete;
    if (event->isAutoRepeat() && (removes || isEnter(*event)))
        return; // held down, it would give up a new picture and then delete the stored one
    if (event->matches(QKeySequence::Paste))
        takeData(*QApplication::clipboard()->mimeData());
    else if (removes)
        Q_EMIT removalAsked();
    else if (isEnter(*event))
        chooseFile();
    else
        PictureBox::keyPressEvent(event);
}

void PictureEntry::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFile(*event->mimeData()).isEmpty() || event->mimeData()->hasImage())
        event->acceptProposedAction();
}

void PictureEntry::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    takeData(*event->mimeData());
}

void PictureEntry::paintEvent(QPaintEvent *event)
{
    PictureBox::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    QStyleOptionFocusRect ring;
    ring.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, this);
}

void PictureEntry::resizeEvent(QResizeEvent *event)
{
    if (isNew())
        showNew();
    else
        PictureBox::resizeEvent(event);
}

} // namespace kuyum
