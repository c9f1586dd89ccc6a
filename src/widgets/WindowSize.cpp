#include "WindowSize.h"

#include <QApplication>
#include <QFileDialog>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QShowEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// What a system's frame takes of the screen, where it cannot be asked yet.
constexpr QMargins usualFrame(2, 32, 2, 4);

QMargins frameOf(const QWidget &window)
{
    const QRect inner = window.geometry();
    const QRect outer = window.frameGeometry();
    return inner == outer
               ? usualFrame
               : QMargins(inner.left() - outer.left(), inner.top() - outer.top(),
                          outer.right() - inner.right(), outer.bottom() - inner.bottom());
}

/// The place for a window's inner rectangle nearest to the one it has, whole on
/// the screen; its top left corner there in any case.
QRect wholeOn(const QRect &screen, QRect inner)
{
    inner.moveRight(std::min(inner.right(), screen.right()));
    inner.moveBottom(std::min(inner.bottom(), screen.bottom()));
    inner.moveLeft(std::max(inner.left(), screen.left()));
    inner.moveTop(std::max(inner.top(), screen.top()));
    return inner;
}

const QScreen *screenUnder(QPoint place)
{
    for (const QScreen *screen : QGuiApplication::screens()) {
        if (screen->availableGeometry().contains(place))
            return screen;
    }
    return nullptr;
}

/// Puts the window's content into a view that scrolls, where the screen is too
/// small for it, and keeps what has the focus in sight.
void scrollLargeContent(QWidget &window, QSize room)
{
    QLayout *layout = window.layout();
    const QSize needed = window.minimumSizeHint().expandedTo(window.minimumSize());
    if (layout == nullptr || qobject_cast<QMainWindow *>(&window) != nullptr ||
        (needed.width() <= room.width() && needed.height() <= room.height()))
        return;
    layout->setSizeConstraint(QLayout::SetDefaultConstraint);
    window.setMinimumSize(0, 0);
    window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    auto *content = new QWidget;
    content->setLayout(layout);
    auto *view = new QScrollArea;
    view->setFrameShape(QFrame::NoFrame);
    view->setFocusPolicy(Qt::NoFocus);
    view->setWidgetResizable(true);
    view->setWidget(content);
    auto *around = new QVBoxLayout(&window);
    around->setContentsMargins({});
    around->addWidget(view);
    QObject::connect(qApp, &QApplication::focusChanged, view, [view](QWidget *, QWidget *reached) {
        if (reached != nullptr && view->widget()->isAncestorOf(reached))
            view->ensureWidgetVisible(reached, 8, 8);
    });
    window.resize(needed.boundedTo(room));
}

QPoint centreFor(const QWidget &window, const QRect &available)
{
    const QWidget *owner = window.parentWidget();
    return owner != nullptr && owner->isVisible() ? owner->window()->geometry().center()
                                                  : available.center();
}

/// The library opens its file dialog larger than a small screen.
void fitLibrarysDialog(QFileDialog &dialog)
{
    const QRect available = dialog.screen()->availableGeometry().marginsRemoved(frameOf(dialog));
    dialog.resize(dialog.size().boundedTo(available.size()));
    dialog.setGeometry(wholeOn(available, dialog.geometry()));
}

class WindowPlaces : public QObject
{
public:
    WindowPlaces(QSettings &settings, QObject *parent) : QObject(parent), m_settings(settings) {}

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool shows = event->type() == QEvent::Show;
        if (auto *dialog = qobject_cast<QFileDialog *>(watched); dialog != nullptr && shows)
            fitLibrarysDialog(*dialog);
        if ((!shows && event->type() != QEvent::Hide) || event->spontaneous() || !isOwn(watched))
            return false;
        auto &window = *static_cast<QWidget *>(watched);
        if (shows)
            open(window);
        else if (!window.isMinimized())
            keep(window);
        return false;
    }

private:
    /// Not the boxes that the library brings.
    static bool isOwn(const QObject *watched)
    {
        if (!watched->isWidgetType() || watched->metaObject()->className()[0] == 'Q')
            return false;
        const Qt::WindowType type = static_cast<const QWidget *>(watched)->windowType();
        return type == Qt::Window || type == Qt::Dialog;
    }

    static QString keyOf(const QWidget &window, const QString &what)
    {
        const QLatin1StringView name(window.metaObject()->className());
        return u"pencere/%1/%2"_s.arg(name.sliced(name.lastIndexOf(u':') + 1), what);
    }

    void open(QWidget &window) const
    {
        const QRect kept = m_settings.value(keyOf(window, u"yer"_s)).toRect();
        const QScreen *under = kept.isEmpty() ? nullptr : screenUnder(kept.center());
        const bool placed = window.testAttribute(Qt::WA_Moved);
        const QScreen &screen = under != nullptr && !placed ? *under : *window.screen();
        const QRect available = screen.availableGeometry().marginsRemoved(frameOf(window));
        scrollLargeContent(window, available.size());
        if (window.isMaximized())
            return;
        const QSize size = kept.isEmpty() || placed ? window.size() : kept.size();
        if (window.minimumSize() != window.maximumSize())
            window.resize(size.boundedTo(available.size()));
        QRect place(kept.topLeft(), window.size());
        if (under == nullptr)
            place.moveCenter(centreFor(window, available));
        if (!placed)
            window.setGeometry(wholeOn(available, place));
        if (m_settings.value(keyOf(window, u"buyuk"_s)).toBool())
            window.setWindowState(Qt::WindowMaximized);
    }

    /// The inner rectangle: with the frame, which the system adds, the window would
    /// wander from time to time.
    void keep(const QWidget &window)
    {
        m_settings.setValue(keyOf(window, u"yer"_s),
                            window.isMaximized() ? window.normalGeometry() : window.geometry());
        m_settings.setValue(keyOf(window, u"buyuk"_s), window.isMaximized());
    }

    QSettings &m_settings;
};

} // namespace

void fitToScreen(QWidget &window, QSize wanted)
{
    const QRect available = window.screen()->availableGeometry();
    window.resize(wanted.boundedTo(available.marginsRemoved(usualFrame).size()));
}

void keepOnScreen(QWidget &window)
{
    const QRect available = window.screen()->availableGeometry().marginsRemoved(frameOf(window));
    const QRect whole = wholeOn(available, window.geometry());
    if (whole != window.geometry())
        window.setGeometry(whole);
}

void rememberWindows(QCoreApplication &application, QSettings &settings)
{
    application.installEventFilter(new WindowPlaces(settings, &application));
}

} // namespace kuyum
