#include "ui/inspector/homes/HomeRow.h"

#include "core/details/FileHome.h"
#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/SelectableText.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal headHeight = 22;
constexpr qreal left = 10;
constexpr qreal right = 6;
constexpr qreal top = 6;
constexpr qreal bottom = 7;
constexpr qreal valueRight = 4;  // more than the head's
constexpr qreal iconSize = 12;
constexpr int mostLines = 3;

// A check mark and "Shown".
class ShownMark final : public QWidget {
public:
    explicit ShownMark(QWidget* parent)
        : QWidget(parent)
    {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        onRestyle(this, [this] {
            setFont(sansFont(11));
            const int text = fontMetrics().horizontalAdvance(title());
            setFixedSize(text + px(iconSize + 4 + valueRight) + 1, px(headHeight));
        });
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        DirectedPainter painter(this);
        const QColor ink = Theme::of(this).derived.label;
        const QRectF mark(0, 0, pxF(iconSize), height());
        Icon::paint(painter, mirrored(mark, this), u"checkmark"_s, pxF(iconSize), ink, 2.1);
        painter.setPen(ink);
        painter.drawText(
            mirrored(rect().adjusted(px(iconSize + 4), 0, 0, 0), this), Qt::AlignVCenter | Qt::AlignLeft, title());
    }

private:
    //: Stands at the one of several values of a field that the form shows.
    static QString title() { return Texts::tr("Shown"); }
};

// Where a file's name stands before the tag, the name gives way, and from its middle: names of a series differ at their
// ends.
class HomeTag final : public ThemedLabel {
public:
    explicit HomeTag(const FieldHome& home)
        : ThemedLabel(home.tag, TextRole::label, 10.5)
        , m_tag(home.tag)
        , m_tagAt(FileHome::is(home) ? home.tag.indexOf(u": "_s) : 0)
    {
        setMono(true);
        setVerbatim(true);
        setElided(true);
    }

protected:
    bool event(QEvent* event) override
    {
        const bool isDone = ThemedLabel::event(event);
        if (m_tagAt > 0 && (event->type() == QEvent::Resize || event->type() == QEvent::Enter))
            fit();
        return isDone;
    }

private:
    void fit()
    {
        const QString tag = m_tag.sliced(m_tagAt);
        const QFontMetrics metrics = fontMetrics();
        const int room =
            std::max(contentsRect().width() - metrics.horizontalAdvance(tag), metrics.horizontalAdvance(u"M…M"_s));
        const QString shown = metrics.elidedText(m_tag.first(m_tagAt), Qt::ElideMiddle, room) + tag;
        if (text() != shown)
            setText(shown);
        setToolTip(shown == m_tag ? QString() : m_tag);
    }

    QString m_tag;
    qsizetype m_tagAt;
};

QString textOf(const FieldHome& home)
{
    const QString text = home.values.join(u" · "_s);
    //: A place within a photo that holds a field, and nothing in it.
    return text.trimmed().isEmpty() ? Texts::tr("(empty)") : text;
}

QString foreignText(const FieldHome& home)
{
    return FileHome::is(home) ? Texts::tr("The photo’s own file: read here, and never written")
                              : Texts::tr("Belongs to another standard: read here, and never written");
}

}  // namespace

HomeRow::HomeRow(const FieldHome& home, QWidget* parent)
    : QWidget(parent)
    , m_home(home)
    , m_value(new SelectableText(this))
{
    describeAs(staticMetaObject, QAccessible::ListItem);
    setFocusPolicy(Qt::StrongFocus);
    installFocusRing(this, { RingShape::tight, 6, {}, {} });
    m_value->setPlainText(textOf(home));
    m_value->setFocusPolicy(Qt::ClickFocus);
    m_value->setAccessibleName(home.tag);
    m_value->installEventFilter(this);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(0);
    column->addWidget(makeHead());
    column->addWidget(m_value);
    const QString held = home.values.join(u", "_s);
    QStringList told{ held.trimmed().isEmpty() ? textOf(home) : held };
    if (home.isForeign) {
        m_foreign = ThemedLabel::wrapped(foreignText(home), TextRole::label, 11);
        column->addWidget(m_foreign);
        told.append(m_foreign->text());
    }
    //: Return is the key. Spoken: what it does to the value that has the keyboard; “shown” is the one in the form.
    told.append(home.isShown ? Texts::tr("shown") : Texts::tr("Return uses this one"));
    setAccessibleName(home.tag);
    setAccessibleDescription(told.join(u", "_s));
    onRestyle(this, [this] { restyle(); });
}

QWidget* HomeRow::makeHead()
{
    auto* head = new QWidget(this);
    auto* line = new QHBoxLayout(head);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(new HomeTag(m_home), 1);
    if (m_home.isShown) {
        line->addWidget(new ShownMark(head));
    } else {
        auto* button = new QBButton(Texts::tr("Use this one"), QBButtonKind::secondary, head);
        button->setSmall(true);
        button->setFocusPolicy(Qt::NoFocus);  // the row has the keyboard
        button->setAccessibleDescription(m_home.tag);
        connect(button, &QAbstractButton::clicked, this, &HomeRow::used);
        line->addWidget(button);
    }
    onRestyle(head, [head] { head->setFixedHeight(px(headHeight)); });
    return head;
}

void HomeRow::restyle()
{
    layout()->setContentsMargins(mirrored(QMargins(px(left), px(top), px(right), px(bottom))));
    if (m_width > 0)
        setRowWidth(m_width);
}

void HomeRow::setRowWidth(int width)
{
    m_width = width;
    const int room = width - px(left + right);
    const int lines = m_value->heightFor(room, mostLines);
    // Of more lines than these the next one shows its upper part: there is something to scroll to.
    const bool isMore = m_value->heightFor(room, mostLines + 1) > lines;
    m_value->setFixedHeight(lines + (isMore ? m_value->fontMetrics().height() / 2 : 0));
    int height = px(top) + px(headHeight) + px(bottom) + m_value->height();
    if (m_foreign) {
        m_foreign->setFixedHeight(m_foreign->heightForWidth(room));
        height += m_foreign->height();
    }
    setFixedHeight(height);
}

void HomeRow::scroll(int by)
{
    QScrollBar* bar = m_value->verticalScrollBar();
    bar->setValue(bar->value() + by * qMax(1, bar->pageStep()));
}

void HomeRow::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        emit stepped(-1);
        break;
    case Qt::Key_Down:
        emit stepped(1);
        break;
    case Qt::Key_PageUp:
        scroll(-1);
        break;
    case Qt::Key_PageDown:
        scroll(1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!m_home.isShown && !event->isAutoRepeat())
            emit used();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

bool HomeRow::eventFilter(QObject* watched, QEvent* event)
{
    // A text that was clicked has the keyboard for what one selects in it: the row's own keys stay the row's.
    if (watched == m_value && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        const QList<int> own{ Qt::Key_Up, Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape };
        if (own.contains(key->key()) && !(key->modifiers() & Qt::ShiftModifier)) {
            keyPressEvent(key);
            return key->isAccepted();
        }
    }
    if (watched == m_value && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        update();
    return QWidget::eventFilter(watched, event);
}

void HomeRow::enterEvent(QEnterEvent* event)
{
    QWidget::enterEvent(event);
    if (!m_value->hasFocus())
        setFocus(Qt::MouseFocusReason);
}

void HomeRow::paintEvent(QPaintEvent*)
{
    if (!hasFocus() && !m_value->hasFocus())
        return;
    DirectedPainter painter(this);
    paintBox(painter, rect(), pxF(6), Theme::of(this).derived.hover, HighContrast::groundEdge(Theme::of(this)));
}

}  // namespace Quorbel
