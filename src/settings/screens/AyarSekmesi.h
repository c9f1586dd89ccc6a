#pragma once

#include "ParametreServices.h"
#include "ParametreStore.h"
#include "ScreenContext.h"

#include <memory>
#include <QWidget>

class QLineEdit;
namespace Ui {
class AyarSekmesi;
}

namespace kuyum {

/// The tab of the settings proper: the company's paths, its label printer,
/// fixed karat and scale. What is not stored anywhere cannot be typed either,
/// and the tab says so.
class AyarSekmesi : public QWidget
{
    Q_OBJECT

public:
    AyarSekmesi(const ScreenContext &context, const ParametreServices &services,
                QWidget *parent = nullptr);
    ~AyarSekmesi() override;

    /// Shows what is stored.
    void load();
    /// Whether anything else than what is stored stands in the boxes.
    bool degisti() const;
    /// Whether there is anything that a save could write.
    bool kaydedilebilir() const;
    /// Stores all of it; false when it was refused and the user told why.
    bool kaydet();

    void focusFirst();
    /// Enter: from one box to the next, and false behind the last.
    bool goOn();

Q_SIGNALS:
    void edited();
    /// Another database is open.
    void companyChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpBoxes();
    void connectControls();
    void showCompany();
    void showSettings();
    void showNumbers();
    Sirket typedPaths() const;
    Ayarlar typedSettings() const;
    bool numbersTyped() const;
    QList<QWidget *> boxes() const;
    bool numbersFit();
    bool numberFits(QLineEdit &box);
    bool savePaths();
    bool mayOpen(Database &db);
    void browse(QLineEdit &box);
    void tellMissingFolders();

    ScreenContext m_context;
    ParametreServices m_services;
    ParametreStore m_store;
    LoadedRows m_loadedCompany;
    LoadedRows m_loadedSettings;
    std::unique_ptr<Ui::AyarSekmesi> m_ui;
    std::optional<Sirket> m_sirket;   ///< as stored; nothing when it is not in the registry
    std::optional<Ayarlar> m_ayarlar; ///< as stored; nothing when there is no row
};

} // namespace kuyum
