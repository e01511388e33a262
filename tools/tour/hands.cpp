#include "tools/tour/hands.h"

#include <QSemaphore>
#include <QTest>
#include <QtWidgets>
#include <atomic>
#include <thread>

#include "screens/browse/browse_window.h"

namespace {

using namespace std::chrono_literals;
constexpr auto patience = 60s;  // machines that build beside it are slow
constexpr auto betweenLooks = 10ms;
constexpr int mostTabs = 80;

QKeyCombination keyOf(const QString& name)
{
    const QKeySequence sequence = QKeySequence::fromString(name);
    if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown)
        throw TourFailure("There is no key " + name + '.');
    return sequence[0];
}

// ---- all below runs in the thread of the windows
QWidget* frontOf(const QMainWindow& main)
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    const auto* area = main.findChild<QMdiArea*>();
    const QMdiSubWindow* screen = area ? area->activeSubWindow() : nullptr;
    return screen ? screen->widget() : nullptr;
}

// The name of the control, or of the one that it is a part of, such as the line in a date field.
bool isNamed(const QWidget* control, const QString& name)
{
    for (; control && !control->isWindow(); control = control->parentWidget())
        if (control->objectName() == name)
            return true;
    return false;
}

QString nameOf(const QWidget* control)
{
    for (; control; control = control->parentWidget())
        if (!control->objectName().isEmpty())
            return control->objectName();
    return "nothing";
}

QString focusName()
{
    return nameOf(QApplication::focusWidget());
}

void selectAll(QWidget* control)
{
    if (auto* combo = qobject_cast<QComboBox*>(control); combo && !combo->isEditable())
        return;
    QTest::keyClick(
        control->windowHandle() ? control->windowHandle() : control->window()->windowHandle(),
        Qt::Key_A, Qt::ControlModifier);
}

// What a window manager does when a box has closed: the window below it has the keyboard again.
void giveKeyboard(QMainWindow& main)
{
    if (QGuiApplication::focusWindow() || QApplication::activePopupWidget())
        return;
    QWidget* modal = QApplication::activeModalWidget();
    (modal ? modal : &main)->activateWindow();
}

void send(QKeyCombination key)
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return QTest::keyClick(popup, key.key(), key.keyboardModifiers());
    if (QWindow* window = QGuiApplication::focusWindow())
        QTest::keyClick(window, key.key(), key.keyboardModifiers());
}

void sendText(const QString& text)
{
    for (const QChar letter : text)
        if (QWindow* window = QGuiApplication::focusWindow())
            QTest::keyClick(window, letter.toLatin1());
}

QString textOfControl(QWidget* control)
{
    if (const auto* edit = qobject_cast<QLineEdit*>(control))
        return edit->text();
    if (const auto* label = qobject_cast<QLabel*>(control))
        return label->text();
    if (const auto* memo = qobject_cast<QPlainTextEdit*>(control))
        return memo->toPlainText();
    if (const auto* combo = qobject_cast<QComboBox*>(control))
        return combo->currentText();
    if (const auto* box = qobject_cast<QAbstractButton*>(control))
        return box->isChecked() ? "ticked" : "not ticked";
    const auto* part = control->findChild<QLineEdit*>();
    return part ? part->text() : QString();
}

// Nothing for a control that is not to be seen.
std::optional<QString> textOn(QWidget* front, const QString& control)
{
    QWidget* found = front ? front->findChild<QWidget*>(control) : nullptr;
    return found && found->isVisible() ? std::optional(textOfControl(found)) : std::nullopt;
}

// A window beside the main one, in the plain frame that it would have on a desktop.
void paintWindow(QPainter& painter, const QWidget& window, const QPoint& at)
{
    constexpr int titleHeight = 24;
    const QRect inside(at, window.size());
    if (window.windowType() != Qt::Popup) {
        const QRect frame = inside.adjusted(-1, -titleHeight, 0, 0);
        const QRect title = frame.adjusted(0, 0, 0, -inside.height());
        painter.fillRect(title, QColor(0x2f, 0x5d, 0x8a));
        painter.setPen(Qt::white);
        painter.drawText(title.adjusted(8, 0, -8, 0), Qt::AlignVCenter, window.windowTitle());
        painter.setPen(QColor(0x60, 0x60, 0x60));
        painter.drawRect(frame);
    }
    painter.drawPixmap(at, const_cast<QWidget&>(window).grab());
}

}  // namespace

void Hands::inWindows(const std::function<void()>& work)
{
    // A failure must reach the road, not the event loop.
    std::exception_ptr failure;
    QSemaphore done;
    QMetaObject::invokeMethod(
        &m_main,
        [&] {
            try {
                work();
            } catch (...) {
                failure = std::current_exception();
            }
            done.release();
        },
        Qt::QueuedConnection);
    done.acquire();
    if (failure)
        std::rethrow_exception(failure);
}

// What was put off to the next turn of the loop has happened.
void Hands::settle()
{
    constexpr int turns = 3;
    for (int turn = 0; turn < turns; ++turn) {
        const auto done = std::make_shared<QSemaphore>();
        QMetaObject::invokeMethod(
            &m_main, [done] { QTimer::singleShot(0, qApp, [done] { done->release(); }); },
            Qt::QueuedConnection);
        if (!done->tryAcquire(1, patience))
            throw TourFailure("The windows do not answer.");
    }
    inWindows([this] { giveKeyboard(m_main); });
}

void Hands::await(const std::function<bool()>& isThere, const QString& what)
{
    const QDeadlineTimer deadline(patience);
    for (;;) {
        bool found = false;
        inWindows([&] { found = isThere(); });
        if (found)
            return;
        if (deadline.hasExpired())
            throw TourFailure(what + " did not come. In front is " + screenInFront() + ".");
        std::this_thread::sleep_for(betweenLooks);
    }
}

void Hands::keys(const QStringList& keys)
{
    for (const QString& key : keys)
        press([code = keyOf(key)] { send(code); });
}

void Hands::leaveBy(const QString& key)
{
    QMetaObject::invokeMethod(
        &m_main, [code = keyOf(key)] { send(code); }, Qt::QueuedConnection);
}

void Hands::type(const QString& text)
{
    press([text] { sendText(text); });
}

// A key may open a modal box, and comes back when that is closed: so long it is not waited for.
// While it works events may come in, ours among them.
void Hands::press(const std::function<void()>& key)
{
    QWidget* modalBefore = nullptr;
    inWindows([&] { modalBefore = QApplication::activeModalWidget(); });
    const auto isDone = std::make_shared<std::atomic<bool>>(false);
    QMetaObject::invokeMethod(
        &m_main,
        [key, isDone] {
            key();
            *isDone = true;
        },
        Qt::QueuedConnection);
    await([&] { return *isDone || QApplication::activeModalWidget() != modalBefore; },
          "The end of a key");
    settle();
}

void Hands::tabTo(const QString& control)
{
    QStringList visited;
    for (int pressed = 0; pressed <= mostTabs; ++pressed) {
        bool isThere = false;
        inWindows([&] {
            isThere = isNamed(QApplication::focusWidget(), control);
            if (!isThere && !visited.contains(focusName()))
                visited.append(focusName());
        });
        if (isThere)
            return;
        keys({"Tab"});
    }
    throw TourFailure("The Tab key does not lead to " + control + " on " + screenInFront() +
                      ". It leads to " + visited.join(", ") + '.');
}

void Hands::fill(const QString& control, const QString& text)
{
    tabTo(control);
    press([] { selectAll(QApplication::focusWidget()); });
    if (text.isEmpty())
        keys({"Del"});
    else
        type(text);
}

void Hands::fill(const std::vector<TypedField>& fields)
{
    for (const TypedField& field : fields)
        fill(field.control, field.text);
}

QString Hands::shortcutOf(const QString& button)
{
    QString shortcut;
    await(
        [&] {
            const QWidget* front = frontOf(m_main);
            const auto* found = front ? front->findChild<QAbstractButton*>(button) : nullptr;
            if (!found || !found->isVisible() || !found->isEnabled())
                return false;
            shortcut = QKeySequence::mnemonic(found->text()).toString();
            return true;
        },
        "A button " + button);
    if (shortcut.isEmpty())
        throw TourFailure("The button " + button + " has no key.");
    return shortcut;
}

void Hands::command(const QString& button)
{
    keys({shortcutOf(button)});
}

void Hands::awaitScreen(const QString& name)
{
    await(
        [&] {
            const QWidget* front = frontOf(m_main);
            return front && front->objectName() == name && front->isVisible();
        },
        "The screen " + name);
    settle();
}

void Hands::awaitMainWindow()
{
    await([&] { return m_main.isVisible() && !QApplication::activeModalWidget(); },
          "The main window");
    settle();
}

void Hands::awaitFocus(const QString& control)
{
    await([&] { return isNamed(QApplication::focusWidget(), control); },
          "The keyboard in " + control);
}

QString Hands::answerBox(const QString& key)
{
    QString text;
    await(
        [&] {
            const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box)
                text = box->windowTitle() + ": " + box->text();
            return box != nullptr;
        },
        "A box");
    keys({key});
    return text;
}

QString Hands::screenInFront()
{
    QString name;
    inWindows([&] {
        const QWidget* front = frontOf(m_main);
        name = front ? front->objectName() : "no screen";
        if (const auto* box = qobject_cast<const QMessageBox*>(front))
            name = "the box \"" + box->windowTitle() + ": " + box->text() + '"';
        name += ", the keyboard in " + focusName();
    });
    return name;
}

QString Hands::caption()
{
    QString caption;
    inWindows([&] {
        if (const QWidget* front = frontOf(m_main))
            caption = front->windowTitle();
    });
    return caption;
}

QString Hands::text(const QString& control)
{
    std::optional<QString> text;
    inWindows([&] { text = textOn(frontOf(m_main), control); });
    if (!text)
        throw TourFailure("There is no " + control + " to be seen on " + screenInFront() + '.');
    return *text;
}

void Hands::awaitText(const QString& control, const QString& text)
{
    await([&] { return textOn(frontOf(m_main), control) == text; },
          "The text \"" + text + "\" in " + control);
}

QList<QStringList> Hands::rows()
{
    QList<QStringList> rows;
    inWindows([&] {
        auto* window = dynamic_cast<BrowseWindow*>(frontOf(m_main));
        if (!window)
            return;
        for (const BrowseLine& line : window->session().list().lines())
            if (line.kind == BrowseLine::Kind::Record)
                rows.append(line.cells);
    });
    return rows;
}

QImage Hands::picture()
{
    settle();
    QImage image;
    inWindows([&] {
        QPixmap all = m_main.grab();
        QPainter painter(&all);
        for (const QWidget* window : QApplication::topLevelWidgets())
            if (window != &m_main && window->isVisible() && window->windowType() != Qt::ToolTip)
                paintWindow(painter, *window, window->pos() - m_main.pos());
        painter.end();
        image = all.toImage();
    });
    return image;
}
