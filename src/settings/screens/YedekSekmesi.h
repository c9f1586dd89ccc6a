#pragma once

#include "Backup.h"
#include "ScreenContext.h"

#include <memory>
#include <optional>
#include <QWidget>

namespace Ui {
class YedekSekmesi;
}

namespace kuyum {

class YedekModel;

/// The tab of the database's backups: makes one, checks one, and puts one in
/// the database's place.
class YedekSekmesi : public QWidget
{
    Q_OBJECT

public:
    explicit YedekSekmesi(const ScreenContext &context, QWidget *parent = nullptr);
    ~YedekSekmesi() override;

    void load();
    void focusFirst();
    /// Restores the chosen backup, after asking.
    void restore();

Q_SIGNALS:
    /// The user wants the chosen backup back.
    void restoreAsked();
    /// The database is another one now.
    void restored();

private:
    void setUpList();
    void connectControls();
    std::optional<BackupFile> chosen() const;
    void showChoice();
    using Work = std::function<void(const WorkProgress &progress)>;
    bool work(const QString &title, const QString &text, const Work &work);
    void make();
    bool isSound(const BackupFile &backup);
    void check();
    bool mayRestore(const BackupFile &backup);
    bool reopen(const QString &path);

    ScreenContext m_context;
    std::unique_ptr<Ui::YedekSekmesi> m_ui;
    YedekModel *m_model;
};

} // namespace kuyum
