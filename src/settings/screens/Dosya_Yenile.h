#pragma once

#include "ScreenContext.h"
#include "TableComparison.h"

#include <functional>
#include <memory>
#include <QDialog>

class QLabel;
namespace Ui {
class Dosya_Yenile;
}

namespace kuyum {

class DatabaseError;

/// Asks for a file, beginning at a place; empty when none was chosen.
using FileChooser = std::function<QString(QWidget *parent, const QString &start)>;

/// Refreshes the company's tables by another database file, and makes an empty
/// database with the same tables. Locked until the access code was typed.
class Dosya_Yenile : public QDialog
{
    Q_OBJECT

public:
    explicit Dosya_Yenile(const ScreenContext &context, QWidget *parent = nullptr);
    ~Dosya_Yenile() override;

    /// The program opens its file dialogs; tests answer.
    void setSourceChooser(FileChooser chooser) { m_chooseSource = std::move(chooser); }
    void setTargetChooser(FileChooser chooser) { m_chooseTarget = std::move(chooser); }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void connectControls();
    void enterPressed();
    void setLocked(bool locked);
    void Sifre_Kontrol();
    void Gozat();
    QList<TableDef> readSource(const QString &path);
    void Combo_Doldur(const QList<TableDef> &chosen);
    void Yenile();
    void Disket();
    bool goesOnWithout(const QString &table, const QString &reason);
    void tellFailure(const DatabaseError &error, const QString &unreachable);
    void tell(const QString &text, const QString &table = {});

    ScreenContext m_context;
    std::unique_ptr<Ui::Dosya_Yenile> m_ui;
    QLabel *m_table; ///< the table that is worked on, in the status bar
    FileChooser m_chooseSource;
    FileChooser m_chooseTarget;
    QString m_source; ///< the chosen file; empty before
};

} // namespace kuyum
