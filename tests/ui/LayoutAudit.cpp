#include "tests/ui/LayoutAudit.h"

#include "tests/ui/UiSupport.h"

#include <QAbstractScrollArea>
#include <QLineEdit>
#include <QPaintEngine>
#include <QPainter>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTextEdit>

#include <algorithm>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

namespace {

// Device-independent pixels by which letters may reach over an edge: side bearings and rounding.
constexpr qreal tolerance = 1.5;

struct DrawnText {
    QString text{};
    QFont font{};
    QRectF ink{};  // in the widget's coordinates
    bool cut = false;
};

// Blanks and marks of the direction of writing have none.
bool hasInk(const QString& text)
{
    return std::any_of(text.cbegin(), text.cend(),
        [](QChar letter) { return !letter.isSpace() && letter.category() != QChar::Other_Format; });
}

// Notes texts, draws nothing.
class TextEngine final : public QPaintEngine {
public:
    TextEngine()
        : QPaintEngine(AllFeatures)
    {
    }
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override { }
    void drawPixmap(const QRectF& place, const QPixmap&, const QRectF&) override
    {
        pictures.append(painter()->deviceTransform().mapRect(place));
    }
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override { }
    void drawTiledPixmap(const QRectF&, const QPixmap&, const QPointF&) override { }
    void drawPath(const QPainterPath&) override { }
    void drawRects(const QRectF*, int) override { }
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override { }
    Type type() const override { return User; }

    void drawTextItem(const QPointF& position, const QTextItem& item) override
    {
        if (!hasInk(item.text()) || painter()->pen().color().alpha() == 0)
            return;
        QRectF ink = QFontMetricsF(item.font()).tightBoundingRect(item.text()).translated(position);
        ink.setLeft(position.x());
        ink.setWidth(item.width());
        const QRectF clip = painter()->hasClipping() ? painter()->clipBoundingRect() : QRectF();
        const bool cut = !clip.isEmpty() && !clip.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(ink);
        const QRectF place = painter()->deviceTransform().mapRect(ink);
        // Scripts without spaces come in parts: their kinds of letters, and a "…" of another font.
        if (!texts.isEmpty() && isWide(texts.constLast().text.back())
            && (item.text() == u"…" || isWide(item.text().front())) && isBehind(texts.constLast(), place)) {
            texts.last().text += item.text();
            texts.last().ink |= place;
            texts.last().cut |= cut;
            return;
        }
        texts.append({ item.text(), item.font(), place, cut });
    }

    QList<DrawnText> texts;
    QList<QRectF> pictures;

private:
    static bool isWide(QChar letter) { return letter.unicode() >= 0x2e80; }
    static bool isBehind(const DrawnText& text, const QRectF& place)
    {
        return qAbs(text.ink.right() - place.left()) < tolerance && text.ink.top() < place.bottom()
            && place.top() < text.ink.bottom() + place.height();
    }
};

class TextDevice final : public QPaintDevice {
public:
    explicit TextDevice(QSize size)
        : m_size(size)
    {
    }
    QPaintEngine* paintEngine() const override { return &m_engine; }
    const QList<DrawnText>& texts() const { return m_engine.texts; }
    const QList<QRectF>& pictures() const { return m_engine.pictures; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        case PdmDepth:
            return 32;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        default:
            return 0;
        }
    }

private:
    QSize m_size;
    mutable TextEngine m_engine;
};

QString className(const QObject* object)
{
    return QString::fromLatin1(object->metaObject()->className()).section(u"::"_s, -1);
}

bool isViewport(const QWidget* widget)
{
    const auto* area = qobject_cast<const QAbstractScrollArea*>(widget->parentWidget());
    return area && area->viewport() == widget;
}

QString nameOf(const QWidget* widget)
{
    if (isViewport(widget))
        return u"viewport of "_s + nameOf(widget->parentWidget());
    const QString name = widget->accessibleName().isEmpty() ? widget->objectName() : widget->accessibleName();
    return name.isEmpty() ? className(widget) : className(widget) + u" “"_s + name.left(40) + u"”"_s;
}

bool isEditor(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget)
        || (isViewport(widget)
            && (qobject_cast<const QPlainTextEdit*>(widget->parentWidget())
                || qobject_cast<const QTextEdit*>(widget->parentWidget())));
}

// What lies over others on purpose: by being told to let clicks through, or by the layer it is.
bool floats(const QWidget* widget)
{
    static const QSet<QString> layers{ u"ErrorBanner"_s, u"SheetHost"_s, u"OverlayScrollBar"_s, u"SuggestionList"_s };
    return widget->testAttribute(Qt::WA_TransparentForMouseEvents) || layers.contains(className(widget));
}

void auditTexts(QWidget* widget, LayoutAudit& audit)
{
    TextDevice device(widget->size());
    widget->render(&device, QPoint(), QRegion(), {});
    const QRectF room = QRectF(widget->rect()).adjusted(-tolerance, -tolerance, tolerance, tolerance);
    const QList<DrawnText>& texts = device.texts();
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const DrawnText& drawn = texts.at(i);
        // The bar's titles may be shortened: the window's own title says them too. So may what a folded section holds:
        // then a tool tip says all of it.
        const bool isSummary = className(widget) == u"FoldingHeading"_s && !widget->toolTip().isEmpty();
        if (className(widget) != u"WindowBar"_s && !(isSummary && drawn.text.endsWith(u'…')))
            audit.texts.insert(drawn.text);
        if (isAltered(drawn.text, drawn.font))
            audit.altered.insert(drawn.text);
        if (isEditor(widget))
            continue;
        const bool goesOn = isViewport(widget);  // the rows of a list
        const bool outside = drawn.ink.left() < room.left() || drawn.ink.right() > room.right()
            || (!goesOn && (drawn.ink.top() < room.top() || drawn.ink.bottom() > room.bottom()));
        if (outside || (drawn.cut && !goesOn))
            audit.faults.append(u"cut: “%1” in %2"_s.arg(drawn.text, nameOf(widget)));
        for (qsizetype j = 0; j < i; ++j)
            if (texts.at(j).ink.adjusted(1, 1, -1, -1).intersects(drawn.ink.adjusted(1, 1, -1, -1)))
                audit.faults.append(
                    u"text over text: “%1”, “%2” in %3"_s.arg(texts.at(j).text, drawn.text, nameOf(widget)));
    }
}

void auditField(const QWidget* widget, LayoutAudit& audit)
{
    const auto* line = qobject_cast<const QLineEdit*>(widget);
    if (!line)
        return;
    const int room = line->width() - line->textMargins().left() - line->textMargins().right() - 4;
    if (line->fontMetrics().horizontalAdvance(line->text()) > room)
        audit.tightFields.insert(line->text());
}

void auditPlaces(const QWidget* parent, LayoutAudit& audit)
{
    QList<const QWidget*> shown;
    for (const QObject* child : parent->children()) {
        const auto* widget = qobject_cast<const QWidget*>(child);
        if (widget && !widget->isWindow() && widget->isVisible() && !widget->size().isEmpty() && !floats(widget))
            shown.append(widget);
    }
    for (qsizetype i = 0; i < shown.size(); ++i) {
        const QRect place = shown.at(i)->geometry();
        const QRect room = parent->rect();
        const bool outside = place.left() < room.left() || place.right() > room.right()
            || (!isViewport(parent) && (place.top() < room.top() || place.bottom() > room.bottom()));
        if (outside)
            audit.faults.append(u"sticks out: %1 of %2"_s.arg(nameOf(shown.at(i)), nameOf(parent)));
        for (qsizetype j = 0; j < i; ++j)
            if (shown.at(j)->geometry().intersects(place))
                audit.faults.append(u"widget over widget: %1, %2 in %3"_s.arg(
                    nameOf(shown.at(j)), nameOf(shown.at(i)), nameOf(parent)));
    }
}

void auditTree(QWidget* widget, LayoutAudit& audit)
{
    auditTexts(widget, audit);
    auditField(widget, audit);
    auditPlaces(widget, audit);
    for (QObject* child : widget->children()) {
        auto* inner = qobject_cast<QWidget*>(child);
        if (inner && !inner->isWindow() && inner->isVisible())
            auditTree(inner, audit);
    }
}

void noteDrawn(QWidget* root, QWidget* widget, QList<Drawn>& drawn)
{
    const QPointF at = widget->mapTo(root, QPoint());
    drawn.append({ nameOf(widget), QRectF(at, QSizeF(widget->size())) });
    TextDevice device(widget->size());
    widget->render(&device, QPoint(), QRegion(), {});
    for (const DrawnText& text : device.texts())
        if (!isEditor(widget))
            drawn.append({ u"“%1” in %2"_s.arg(text.text, nameOf(widget)), text.ink.translated(at) });
    for (const QRectF& picture : device.pictures())
        drawn.append({ u"picture in "_s + nameOf(widget), picture.translated(at) });
    for (QObject* child : widget->children()) {
        auto* inner = qobject_cast<QWidget*>(child);
        if (inner && !inner->isWindow() && inner->isVisible())
            noteDrawn(root, inner, drawn);
    }
}

}  // namespace

QStringList LayoutAudit::worseThan(const QList<LayoutAudit>& others) const
{
    LayoutAudit all;
    QSet<QString> beginnings;
    for (const LayoutAudit& other : others) {
        all.texts |= other.texts;
        all.tightFields |= other.tightFields;
    }
    const auto beginning = [](const QString& text) { return text.left(12).section(u'…', 0, 0); };
    for (const QString& text : std::as_const(all.texts))
        if (text.endsWith(u'…'))
            beginnings.insert(beginning(text));
    // "Open… (Ctrl+O)" is a name and no end.
    static const QRegularExpression end(u"…(?! )"_s);
    // Nor is it one where a line is broken elsewhere.
    const auto isPart = [&all](const QString& text) {
        return std::any_of(all.texts.cbegin(), all.texts.cend(),
            [part = text.trimmed()](const QString& whole) { return whole.contains(part); });
    };
    QStringList worse;
    for (const QString& text : texts)
        if (text.contains(end) && !isPart(text) && !beginnings.contains(beginning(text)))
            worse.append(u"shortened: “%1”"_s.arg(text));
    for (const QString& text : tightFields - all.tightFields)
        worse.append(u"does not fit its field: “%1”"_s.arg(text));
    worse.sort();
    return worse;
}

QList<Drawn> drawnIn(QWidget* root)
{
    QList<Drawn> drawn;
    noteDrawn(root, root, drawn);
    return drawn;
}

LayoutAudit audit(QWidget* root)
{
    LayoutAudit result;
    auditTree(root, result);
    return result;
}

}  // namespace Quorbel::Test
