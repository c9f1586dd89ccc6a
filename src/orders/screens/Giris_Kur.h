#pragma once

#include "KurStore.h"
#include "ScreenContext.h"

#include <memory>
#include <QDialog>

class QSettings;
namespace Ui {
class Giris_Kur;
}

namespace kuyum {

class KurModel;
class SavedLine;

/// The exchange rates of a date. In date entry only the date and the list
/// live; in rate entry the date's rates stand in the grid.
class Giris_Kur : public QDialog
{
    Q_OBJECT

public:
    /// The settings remember, for each company, whether buying rates are kept.
    Giris_Kur(const ScreenContext &context, QSettings &settings, QWidget *parent = nullptr);
    ~Giris_Kur() override;

    /// Leaves the screen, unless the user wants to keep what is not saved yet.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    template <typename Action>
    void bind(QWidget *button, Action action);
    void connectControls();
    void setUpLook();
    void enterPressed();

    // States
    void GridDoldur();
    void enterDate();
    bool isEntering() const;
    void setEntering(bool on);
    bool mayLeave();
    void abandon();

    void dateEntered();
    void KurGoster();
    QString noteOn(QDate Tarih, bool hasOwn) const;
    void pickDate();
    void save();
    bool store(const std::function<void(LoadedRows &)> &write);
    void remove();
    void keepBuyingRates(bool on);
    QString buyingRatesKey() const;

    ScreenContext m_context;
    QSettings &m_settings;
    KurStore m_store;
    std::unique_ptr<Ui::Giris_Kur> m_ui;
    KurModel *m_model;
    SavedLine *m_saved;
    LoadedRows m_loaded;       ///< the rates as they stood when they were shown
    QDate m_date;              ///< whose rates stand in the grid
    QList<KurSatiri> m_opened; ///< the rates as they were shown
};

} // namespace kuyum
