#pragma once

#include <QLabel>

namespace kuyum {

/// Shows a picture file as large as the box allows, or why it cannot be shown.
class PictureBox : public QLabel
{
public:
    explicit PictureBox(QWidget *parent = nullptr);

    /// An empty path clears the box.
    void showFile(const QString &path);
    const QString &path() const { return m_path; }
    /// Why the file cannot be shown; empty when it can.
    const QString &error() const { return m_error; }
    QSize sizeHint() const override { return {280, 280}; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void load();

    QString m_path;
    QString m_error;
    QSize m_loadedFor;
};

} // namespace kuyum
