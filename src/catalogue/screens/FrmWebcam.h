#pragma once

#include "FrameSource.h"

#include <memory>
#include <QDialog>
#include <QTimer>

class QSettings;
namespace Ui {
class FrmWebcam;
}

namespace kuyum {

class Messages;

/// What the webcam screen works with, handed in by the program.
struct WebcamServices
{
    Messages &messages;
    QSettings &settings;
    FrameSourceOpener openSource;
};

/// Asks for the file a frame goes into; empty for none.
using FrameFileChooser = std::function<QString(QWidget *parent)>;

/// Shows what the camera sees and takes one frame of it.
class FrmWebcam : public QDialog
{
    Q_OBJECT

public:
    explicit FrmWebcam(const WebcamServices &services, QWidget *parent = nullptr);
    ~FrmWebcam() override;

    /// Connects to the driver of the stored index; without one, says so and
    /// gives false.
    bool Baglan();
    /// The frame that was taken; null until then.
    const QImage &takenFrame() const { return m_taken; }
    /// The program opens its file dialog; tests answer.
    void setFileChooser(FrameFileChooser chooser) { m_chooseFile = std::move(chooser); }

    void done(int result) override;

private:
    void readSettings();
    void setBackColour(const QString &backcolor);
    void showFrame(const QImage &frame);
    void fitToImage(QSize image);
    void lose();
    void takeFrame();
    void chooseFormat();
    void saveFrame();

    WebcamServices m_services;
    std::unique_ptr<Ui::FrmWebcam> m_ui;
    std::unique_ptr<FrameSource> m_source;
    FrameFileChooser m_chooseFile;
    QTimer m_firstFrame; ///< how long the first frame may take
    QSize m_fittedTo;    ///< the image that the screen was made to fit
    QImage m_taken;
    bool m_lost = false;
};

/// Opens the screen for a picture of a mold ("KALIP CEK") or a model ("MODEL
/// CEK") and returns the frame that was taken, null for none. For any other
/// `Secilen` the frame goes to the clipboard only.
QImage webcamFrame(const WebcamServices &services, QWidget *parent, const QString &Secilen);

} // namespace kuyum
