// Every screen of the window as those see and reach it who use no mouse, or one with an unsteady hand: what has the
// keyboard is seen, and what can be clicked is large enough.
#include "tests/ui/window/WindowFixture.h"
#include "tests/ui/window/WindowWalk.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QImage>
#include <QPointer>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

constexpr int leastTarget = 24;  // pixels
// More than a blinking caret, less than any ring.
constexpr int leastChange = 60;  // pixels

QString nameOf(const QWidget* widget)
{
    const QString kind = QString::fromLatin1(widget->metaObject()->className()).section(u"::"_s, -1);
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    const QString text = widget->accessibleName().isEmpty() && button ? button->text() : widget->accessibleName();
    return kind + u" “"_s + text.left(40) + u"”"_s;
}

// What of a widget can be seen, in its window's coordinates.
QRect shownPart(const QWidget* widget)
{
    QRect part = widget->rect();
    QPoint offset;
    for (const QWidget* w = widget; !w->isWindow(); w = w->parentWidget()) {
        offset += w->pos();
        part = part.translated(w->pos()).intersected(w->parentWidget()->rect());
    }
    return part;
}

bool isReached(const QWidget* widget)
{
    const QRect part = shownPart(widget);
    if (!widget->isVisible() || !widget->isEnabled() || part.isEmpty())
        return false;
    const QWidget* top = widget->window()->childAt(part.center());
    return top && (top == widget || widget->isAncestorOf(top) || top->isAncestorOf(widget));
}

int difference(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    return count;
}

// Whether one sees that it has the keyboard.
bool isFocusSeen(QWidget* widget)
{
    QWidget* window = widget->window();
    QWidget* before = QApplication::focusWidget();
    widget->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();  // it may have been scrolled into sight
    const QRect around = shownPart(widget).adjusted(-6, -6, 6, 6).intersected(window->rect());
    const auto picture = [&] {
        QApplication::sendPostedEvents();
        return window->grab(around).toImage();
    };
    const QImage with = picture();
    widget->clearFocus();
    const bool isSeen = difference(with, picture()) >= leastChange;
    if (before)
        before->setFocus(Qt::OtherFocusReason);
    return isSeen;
}

// Whether a press there, in the button's coordinates, is the button's.
bool isPressedAt(QAbstractButton* button, QPoint at)
{
    QWidget* window = button->window();
    const QPoint inWindow = button->mapTo(window, at);
    QWidget* under = window->childAt(inWindow);
    if (!under)
        under = window;
    QTest::mousePress(under, Qt::LeftButton, {}, under->mapFrom(window, inWindow));
    const bool isDown = button->isDown();
    // Let go elsewhere: nothing is clicked.
    const QPoint away = under->mapFrom(window, QPoint(-500, -500));
    QMouseEvent move(
        QEvent::MouseMove, away, window->mapToGlobal(QPoint(-500, -500)), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(under, &move);
    QTest::mouseRelease(under, Qt::LeftButton, {}, away);
    return isDown;
}

bool isLargeEnough(QAbstractButton* button)
{
    const QPoint center = button->rect().center();
    const int reach = leastTarget / 2 - 1;
    QList<QPoint> edges;
    if (button->width() < leastTarget)
        edges << center + QPoint(-reach, 0) << center + QPoint(reach, 0);
    if (button->height() < leastTarget)
        edges << center + QPoint(0, -reach) << center + QPoint(0, reach);
    return std::all_of(
        edges.cbegin(), edges.cend(), [button](const QPoint& edge) { return isPressedAt(button, edge); });
}

}  // namespace

class tst_HandsAndEyes : public QObject {
    Q_OBJECT

private slots:
    void everyScreen();
};

void tst_HandsAndEyes::everyScreen()
{
    WalkedPhotos photos;
    QVERIFY(photos.open());
    WindowWalk walk(photos, { 1600, 1000 });
    QSet<QString> looked;
    QStringList faults;
    int rings = 0;
    int targets = 0;
    walk.scenes([&](const QString& screen, QWidget* shown) {
        shown->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(shown));
        // What gets or loses the keyboard may take others along.
        const QList<QWidget*> all = shown->findChildren<QWidget*>();
        for (const QPointer<QWidget>& widget : QList<QPointer<QWidget>>(all.cbegin(), all.cend())) {
            if (!widget)
                continue;
            auto* button = qobject_cast<QAbstractButton*>(widget.data());
            const bool takesFocus = widget->focusPolicy() & Qt::TabFocus && !widget->focusProxy();
            if ((!takesFocus && !button) || !isReached(widget) || looked.contains(nameOf(widget)))
                continue;
            looked.insert(nameOf(widget));
            if (takesFocus && ++rings && !isFocusSeen(widget))
                faults.append(screen + u": focus is not seen: "_s + nameOf(widget));
            if (button && ++targets && !isLargeEnough(button))
                faults.append(u"%1: %2×%3 is too small: %4"_s.arg(screen)
                                  .arg(button->width())
                                  .arg(button->height())
                                  .arg(nameOf(widget)));
        }
    });
    for (const QString& fault : std::as_const(faults))
        qInfo().noquote() << fault;
    qInfo() << rings << "stops," << targets << "targets";
    QVERIFY(rings > 100 && targets > 100);
    QCOMPARE(faults.size(), 0);
}

int main(int argc, char* argv[])
{
    return runOnLargeScreen<tst_HandsAndEyes>(argc, argv);
}
#include "tst_HandsAndEyes.moc"
