#pragma once

#include "RaporContext.h"
#include "UretimListesi.h"
#include "UretimStore.h"

#include <memory>
#include <QTimer>
#include <QWidget>

namespace Ui {
class UretimSekmesi;
}

namespace kuyum {

class LookupModel;
class SecimModeli;

/// The tab "URETIM RAPORU": the list of all orders, what is to be made of the
/// current one, and the production sheet of those marked.
class UretimSekmesi : public QWidget
{
    Q_OBJECT

public:
    explicit UretimSekmesi(const RaporContext &context, QWidget *parent = nullptr);
    ~UretimSekmesi() override;

    /// Reads the current order's lines anew.
    void refresh();
    void focusFirst();
    /// Whether no marks are lost by leaving; asks the user where they would be.
    bool mayLeave();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setUpList();
    void setUpFilters();
    void connectControls();
    bool listKey(QKeyEvent *event);
    void spreadColumns();
    void sortBy(int column);
    void showProgress();
    void showSelection();
    void tellHiddenLines();
    UretimFiltre filtre() const;
    QList<qint32> markedOrders() const;
    void showModel();
    void showLines(qsizetype row);
    void print();
    void showSheet();

    RaporContext m_context;
    UretimStore m_store;
    std::unique_ptr<Ui::UretimSekmesi> m_ui;
    LookupModel *m_siparisler;
    SecimModeli *m_secim;
    qint32 m_Sipnum = 0;     ///< the order whose lines are shown; 0: none
    ReportTable m_adetler;   ///< its pieces, as Yedek0 shows them
    QList<qint32> m_printed; ///< the marked orders that the last sheet was of
    QTimer m_orderTimer;     ///< a held arrow key passes orders without reading each
    QTimer m_modelTimer;
};

} // namespace kuyum
