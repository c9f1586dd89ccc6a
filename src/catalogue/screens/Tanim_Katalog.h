#pragma once

#include "KatalogBaski.h"
#include "KatalogStore.h"
#include "LabelLookup.h"
#include "ScreenContext.h"

#include <memory>
#include <QDialog>

class QAbstractButton;
class QLineEdit;
namespace Ui {
class Tanim_Katalog;
}

namespace kuyum {

class KatalogModel;

/// Assembles catalogues of models and prints them. Before a name is entered
/// only the name and the list live; then the catalogue, found or new, stands
/// on the screen.
class Tanim_Katalog : public QDialog
{
    Q_OBJECT

public:
    explicit Tanim_Katalog(const ScreenContext &context, QWidget *parent = nullptr);
    ~Tanim_Katalog() override;

    /// Leaves the screen, unless the user wants to keep what is not saved yet.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void Ondegerler();
    void limitEntries();
    void connectControls();
    template <typename Action>
    void bind(QAbstractButton *button, Action action);
    void enterPressed();

    void EkranAc();
    void EkranKapa();
    void setEditing(bool on);
    bool isEditing() const;
    bool mayLeave();
    void Vazgec();

    void nameEntered();
    void pickCatalogue();
    void KatalogBul(const QString &KatAdi);
    void ModelBul();
    void takeLabel(const LabelledModel &label, const QString &text);
    void takeModels(const QList<KatalogSatiri> &models);
    void showModel(const KatalogSatiri &model);
    void add();
    void clearEntry();
    void removeRow(int row);
    void showPicture();
    void tellRows();

    Katalog collect() const;
    bool hasChosen() const;
    void offerChosen();
    void save();
    void removeCatalogue();
    bool store(const std::function<void(LoadedRows &)> &write);
    using Katalog_Baski = decltype(&Katalog_35);
    void print(QAbstractButton *choice, Katalog_Baski form);

    ScreenContext m_context;
    KatalogStore m_store;
    std::unique_ptr<Ui::Tanim_Katalog> m_ui;
    KatalogModel *m_model;
    LoadedRows m_loaded;                   ///< as it stood when it was opened
    Katalog m_opened;                      ///< the catalogue as it is stored
    std::optional<KatalogSatiri> m_chosen; ///< the model in the entry boxes
};

} // namespace kuyum
