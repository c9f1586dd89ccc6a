#include "ChangeBox.h"

#include "EntryControls.h"
#include "WindowSize.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

enum Column { Record, Field, Loaded, Mine, Standing, Columns };

QString explanation(const ChangedMeanwhile &changed)
{
    const bool removes = changed.save() == ChangedMeanwhile::Save::Removes;
    QString text = changed.stands()
                       ? u"Siz açtıktan sonra bu kayıt başka bir yerde değiştirildi. "_s
                       : u"Siz açtıktan sonra bu kayıt başka bir yerde silindi. "_s;
    text += removes ? u"Henüz hiçbir şey silinmedi."_s : u"Henüz hiçbir şey yazılmadı."_s;
    text += changed.stands()
                ? u"\n\"Onunkini al\" bu ekranda yazdıklarınızı bırakır ve kaydı şimdiki haliyle "
                  "yeniden açar."_s
                : u"\n\"Onunkini al\" bu ekranda yazdıklarınızı bırakır."_s;
    return text;
}

/// A cell wraps between words only, and would cut a word wider than itself.
QString breakable(const QString &text)
{
    constexpr int narrowest = 8; // characters that fit into a cell at every scale
    constexpr QChar mayBreak(0x200B);
    QString result;
    int run = 0;
    for (const QChar c : text) {
        run = c.isSpace() ? 0 : run + 1;
        if (run > narrowest) {
            result.append(mayBreak);
            run = 1;
        }
        result.append(c);
    }
    return result;
}

} // namespace

ChangeBox::ChangeBox(const ChangedMeanwhile &changed, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(u"Kayıt bu arada değişti"_s);
    auto *text = new QLabel(explanation(changed), this);
    text->setObjectName(u"aciklama"_s);
    text->setWordWrap(true);
    m_table = makeTable(changed.changes());
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(m_table, 1);
    layout->addLayout(makeButtons(changed));
    constexpr QSize comfortable(920, 420);
    fitToScreen(*this, comfortable);
}

QTableWidget *ChangeBox::makeTable(const QList<FieldChange> &changes)
{
    auto *table = new QTableWidget(int(changes.size()), Columns, this);
    table->setObjectName(u"farklar"_s);
    table->setAccessibleName(u"Farklar"_s);
    table->setHorizontalHeaderLabels(
        {u"Kayıt"_s, u"Alan"_s, u"Açtığınızda"_s, u"Sizin değeriniz"_s, u"Şimdiki değer"_s});
    for (int row = 0; row < changes.size(); ++row) {
        const FieldChange &change = changes[row];
        const QStringList texts = {change.record, change.field, change.loaded, change.mine,
                                   change.standing};
        for (int column = 0; column < Columns; ++column) {
            auto *item = new QTableWidgetItem(breakable(texts[column]));
            item->setToolTip(texts[column]);
            // Where his value differs from the one that was opened, it is his change.
            if ((column == Mine && change.mine != change.loaded) ||
                (column == Standing && change.standing != change.loaded)) {
                QFont bold = table->font();
                bold.setBold(true);
                item->setFont(bold);
            }
            table->setItem(row, column, item);
        }
    }
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->setCurrentCell(changes.isEmpty() ? -1 : 0, Record);
    return table;
}

QLayout *ChangeBox::makeButtons(const ChangedMeanwhile &changed)
{
    const bool removes = changed.save() == ChangedMeanwhile::Save::Removes;
    auto *row = new QHBoxLayout;
    row->addStretch(1);
    const auto add = [&](const QString &text, const QString &name, ChangeAnswer answer) {
        auto *button = new QPushButton(text, this);
        button->setObjectName(name);
        button->setAutoDefault(false);
        // Held down from what led here, Enter would answer unread.
        ignoreHeldEnter(*button);
        connect(button, &QPushButton::clicked, this, [this, answer] {
            m_answer = answer;
            accept();
        });
        row->addWidget(button);
        return button;
    };
    add(removes ? u"&Benimki gibi sil"_s : u"&Benimkini kaydet"_s, u"cmdBenimki"_s,
        ChangeAnswer::Mine);
    add(u"&Onunkini al"_s, u"cmdOnunki"_s, ChangeAnswer::Theirs);
    QPushButton *back = add(u"&Ekrana dön"_s, u"cmdEkran"_s, ChangeAnswer::Back);
    back->setDefault(true);
    back->setFocus(Qt::OtherFocusReason);
    return row;
}

void ChangeBox::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // The widths are those of the shown window; long texts go on below.
    m_table->resizeRowsToContents();
}

} // namespace kuyum
