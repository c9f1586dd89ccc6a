#pragma once

#include "EtiketSablonu.h"
#include "EtiketStore.h"
#include "LabelPrinter.h"
#include "ScreenContext.h"

#include <memory>
#include <QDialog>

class QLabel;
class QLineEdit;
namespace Ui {
class Tanim_Barkod;
}

namespace kuyum {

/// Prints the label of a model on the label printer. The model is typed or
/// taken from the list; what is printed can be changed before it is.
class Tanim_Barkod : public QDialog
{
    Q_OBJECT

public:
    Tanim_Barkod(const ScreenContext &context, LabelPrinter &labelPrinter,
                 QWidget *parent = nullptr);
    ~Tanim_Barkod() override;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct AskedBox
    {
        QString alan; ///< the placeholder it is asked for
        QLabel *label;
        QLineEdit *box;
    };

    void setUpLook();
    void connectControls();
    void bind(QWidget *button, void (Tanim_Barkod::*action)());
    void enterPressed();
    void goOn(const QWidget *from);

    void ModelBul();
    void pick(const QString &filter);
    void find(const QString &model, qint32 TipID);
    void showModel(const EtiketModeli &found);
    void clearTyped();
    void clear();

    const BarkodTipi *chosenType() const;
    void typeChosen();
    void tellHiddenFields();
    void warn(const QString &text);
    void updateButtons();

    bool hasPrices();
    QMap<QString, QString> askedValues() const;
    PrintDocument document() const;
    void print();
    void preview();

    ScreenContext m_context;
    LabelOutlet m_labels;
    EtiketStore m_store;
    std::unique_ptr<Ui::Tanim_Barkod> m_ui;
    EtiketAyari m_settings;
    QList<BarkodTipi> m_types;
    QList<AskedBox> m_asked;
    std::optional<EtiketModeli> m_found; ///< the model on the screen
};

} // namespace kuyum
