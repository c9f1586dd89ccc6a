#pragma once

#include "LookupRequest.h"

#include <memory>
#include <QDialog>
#include <QTimer>

namespace Ui {
class Liste_Combo;
}

namespace kuyum {

class LookupModel;
struct LookupList;
class Messages;
struct Oturum;

/// The one pick-list of the program. Enter or a double click takes the
/// highlighted row, Escape leaves without one. What is typed narrows the rows.
class Liste_Combo : public QDialog
{
    Q_OBJECT

public:
    /// Throws DatabaseError when the list cannot be read.
    Liste_Combo(Oturum &oturum, Messages &messages, const LookupRequest &request,
                QWidget *parent = nullptr);
    ~Liste_Combo() override;

    /// Empty until a row was taken.
    const LookupAnswer &answer() const { return m_answer; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpGrid();
    void showRates();
    int neededWidth(int column) const;
    void showColumns(int room);
    void setUpSize();
    bool gridKey(QKeyEvent *event);
    bool searchKeyPressed(QKeyEvent *event);
    bool typedKey(const QKeyEvent *event);
    void narrow(const QString &text);
    void sortBy(int column);
    void take();
    QList<int> chosenRows() const;
    void narrowOrders();
    void rebindOrders(const QString &condition);
    void addHelp();
    void highlightFirst();
    void showProgress();
    void showPicture();

    Oturum &m_oturum;
    Messages &m_messages;
    const LookupList &m_list;
    std::unique_ptr<Ui::Liste_Combo> m_ui;
    LookupModel *m_model;
    int m_column = 0; ///< of the current cell, kept while rows come and go
    QTimer m_pictureTimer;
    LookupAnswer m_answer;
};

/// What the program hands to the screens that need a code picked. Both
/// references must outlive it.
LookupOpener lookupOpener(Oturum &oturum, Messages &messages);

} // namespace kuyum
