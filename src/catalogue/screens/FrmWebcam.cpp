#include "FrmWebcam.h"

#include "EntryControls.h"
#include "Guarded.h"
#include "PictureFiles.h"
#include "ui_FrmWebcam.h"
#include "WindowSize.h"

#include <QClipboard>
#include <QFileDialog>
#include <QInputDialog>
#include <QScreen>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int mostMillisecondsToFirstFrame = 8000;
constexpr QRgb usualBackColour = 0x404040;

// The settings, by section and key.
const auto backcolorKey = u"preferences/backcolor";
const auto leftKey = u"preferences/left";
const auto topKey = u"preferences/top";
const auto driverKey = u"driver/index";

QString key(const char16_t *name)
{
    return QString::fromUtf16(name);
}

/// A colour as "&HBBGGRR", with or without an & behind it.
QColor colourOf(QString text)
{
    bool isNumber = false;
    text.remove(u'&');
    const bool hexadecimal = text.startsWith(u'H', Qt::CaseInsensitive);
    const uint value = hexadecimal ? text.mid(1).toUInt(&isNumber, 16) : text.toUInt(&isNumber);
    if (!isNumber)
        return usualBackColour;
    return QColor(int(value & 0xff), int(value >> 8 & 0xff), int(value >> 16 & 0xff));
}

QString saveDialog(QWidget *parent)
{
    QFileDialog dialog(parent, u"Save Single Frame"_s, {}, u"DIB Bitmap Files (*.jpg)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"jpg"_s);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

bool isJpegName(const QString &path)
{
    return path.endsWith(".jpg"_L1, Qt::CaseInsensitive) ||
           path.endsWith(".jpeg"_L1, Qt::CaseInsensitive);
}

} // namespace

FrmWebcam::FrmWebcam(const WebcamServices &services, QWidget *parent)
    : QDialog(parent),
      m_services(services),
      m_ui(std::make_unique<Ui::FrmWebcam>()),
      m_chooseFile(saveDialog)
{
    m_ui->setupUi(this);
    const auto bind = [this](QPushButton *button, void (FrmWebcam::*action)()) {
        connect(button, &QPushButton::clicked, this,
                [this, action] { guarded(m_services.messages, this, [&] { (this->*action)(); }); });
    };
    bind(m_ui->cmdResimCopy, &FrmWebcam::takeFrame);
    bind(m_ui->Ayarla_Cmd, &FrmWebcam::chooseFormat);
    bind(m_ui->cmdKaydet, &FrmWebcam::saveFrame);
    connect(m_ui->Kapat_Cmd, &QPushButton::clicked, this, &QDialog::reject);
    // Still held from what opened the screen, it has not seen the frame yet.
    ignoreHeldEnter(*m_ui->cmdResimCopy);
    for (QPushButton *button : {m_ui->cmdResimCopy, m_ui->cmdKaydet})
        button->setEnabled(false);
    m_firstFrame.setSingleShot(true);
    connect(&m_firstFrame, &QTimer::timeout, this, &FrmWebcam::lose);
    readSettings();
}

FrmWebcam::~FrmWebcam() = default;

void FrmWebcam::readSettings()
{
    const QSettings &settings = m_services.settings;
    setBackColour(settings.value(key(backcolorKey), u"&H404040"_s).toString());
    if (!settings.contains(key(leftKey)) || !settings.contains(key(topKey)))
        return;
    const QPoint corner(settings.value(key(leftKey)).toInt(), settings.value(key(topKey)).toInt());
    for (const QScreen *screen : QGuiApplication::screens()) {
        if (screen->availableGeometry().contains(corner))
            setGeometry({corner, size()});
    }
}

void FrmWebcam::setBackColour(const QString &backcolor)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, colourOf(backcolor));
    setPalette(colours);
}

bool FrmWebcam::Baglan()
{
    m_source = m_services.openSource(m_services.settings.value(key(driverKey), u"0"_s).toInt());
    if (m_source == nullptr) {
        lose();
        return false;
    }
    // A device that another program holds can say so while it is being started.
    connect(m_source.get(), &FrameSource::frameCame, this, &FrmWebcam::showFrame);
    // Queued: closing lets the source go, and it is still at work when it says so.
    connect(m_source.get(), &FrameSource::lost, this, &FrmWebcam::lose, Qt::QueuedConnection);
    if (!m_source->start()) {
        lose();
        return false;
    }
    // Or it stays silent.
    m_firstFrame.start(mostMillisecondsToFirstFrame);
    return true;
}

void FrmWebcam::lose()
{
    if (m_lost)
        return;
    m_lost = true;
    m_firstFrame.stop();
    m_services.messages.say(isVisible() ? this : parentWidget(), u"WebCam Bulunamadi...."_s,
                            MessageIcon::Critical, u"Webcam"_s);
    // A dialog over the screen would keep the caller waiting for its answer.
    for (auto *dialog : findChildren<QDialog *>())
        dialog->reject();
    reject();
}

void FrmWebcam::showFrame(const QImage &frame)
{
    m_firstFrame.stop();
    m_ui->capwnd->showFrame(frame);
    if (frame.size() != m_fittedTo)
        fitToImage(frame.size());
    if (m_ui->cmdResimCopy->isEnabled())
        return;
    for (QPushButton *button : {m_ui->cmdResimCopy, m_ui->cmdKaydet})
        button->setEnabled(true);
    m_ui->cmdResimCopy->setFocus(Qt::TabFocusReason);
}

/// As large as the image, as far as the screen allows.
void FrmWebcam::fitToImage(QSize image)
{
    m_fittedTo = image;
    const QSize besides = size() - m_ui->capwnd->size();
    const QSize room = screen()->availableSize() * 0.9 - besides;
    const bool fits = image.width() <= room.width() && image.height() <= room.height();
    resize((fits ? image : image.scaled(room, Qt::KeepAspectRatio)) + besides);
    // Grown from where it stood, it may reach over the screen's edge.
    keepOnScreen(*this);
}

void FrmWebcam::takeFrame()
{
    m_taken = m_ui->capwnd->frame();
    QGuiApplication::clipboard()->setImage(m_taken);
    accept();
}

void FrmWebcam::chooseFormat()
{
    const QStringList formats = m_source->formats();
    QInputDialog dialog(this);
    dialog.setWindowTitle(u"Webcam"_s);
    dialog.setLabelText(u"Görüntü biçimi"_s);
    dialog.setOption(QInputDialog::UseListViewForComboBoxItems);
    dialog.setComboBoxItems(formats);
    dialog.setTextValue(formats.value(m_source->format()));
    dialog.setOkButtonText(u"Tamam"_s);
    dialog.setCancelButtonText(u"Vazgeç"_s);
    const bool chosen = dialog.exec() == QDialog::Accepted;
    if (const qsizetype format = formats.indexOf(dialog.textValue());
        chosen && m_source && format >= 0)
        m_source->setFormat(int(format));
}

/// The frame of the moment in which the button was pressed.
void FrmWebcam::saveFrame()
{
    const QImage frame = m_ui->capwnd->frame();
    QString path = m_chooseFile(this);
    if (path.isEmpty())
        return;
    // What is written is JPEG, so it is called so.
    if (!isJpegName(path)) {
        path += u".jpg"_s;
        if (QFile::exists(path) &&
            !m_services.messages.ask(this, u"Resim Mevcut. Uzerine Yazılsınmı?"_s,
                                     MessageIcon::Exclamation, windowTitle(), MessageAnswer::No))
            return;
    }
    try {
        savePicture(frame, path);
    } catch (const std::runtime_error &) {
        m_services.messages.say(this, u"Problem saving frame"_s, MessageIcon::Information);
    }
}

void FrmWebcam::done(int result)
{
    if (isVisible() && !isMinimized()) {
        // Without the frame, which the system adds: with it the window would wander.
        m_services.settings.setValue(key(leftKey), geometry().x());
        m_services.settings.setValue(key(topKey), geometry().y());
    }
    m_source.reset();
    QDialog::done(result);
}

QImage webcamFrame(const WebcamServices &services, QWidget *parent, const QString &Secilen)
{
    FrmWebcam screen(services, parent);
    if (!screen.Baglan())
        return {};
    screen.exec();
    const bool wanted = Secilen == "KALIP CEK"_L1 || Secilen == "MODEL CEK"_L1;
    return wanted ? screen.takenFrame() : QImage();
}

} // namespace kuyum
