// A window to put controls into, and what one reads from a control's picture. For tests only.
#pragma once

#include "ui/controls/theme/Theme.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QGlyphRun>
#include <QLabel>
#include <QRawFont>
#include <QRegularExpression>
#include <QTest>
#include <QTextLayout>
#include <QVBoxLayout>
#include <QWidget>

#include <cmath>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

/// Call in init(). The platform that draws off screen says what it lacks; nothing else may be warned of.
inline void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
}

/// An active window of 500 by 400 pixels with a theme and a column of widgets in it. No animations.
class Stage {
public:
    explicit Stage(const Theme& theme = Theme::light())
    {
        qputenv("QUORBEL_REDUCE_MOTION", "1");
        m_window.resize(500, 400);
        setTheme(&m_window, theme);
        m_layout = new QVBoxLayout(&m_window);
        m_layout->setContentsMargins(20, 20, 20, 20);
        m_layout->addStretch();
    }

    /// Adds a widget at the bottom of the column; the window owns it.
    template <typename Widget>
    Widget* add(Widget* widget)
    {
        m_layout->insertWidget(m_layout->count() - 1, widget, 0, Qt::AlignTop);
        return widget;
    }

    void show()
    {
        m_window.show();
        m_window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_window));
        m_window.setFocusPolicy(Qt::StrongFocus);
        m_window.setFocus();
    }

    QWidget* window() { return &m_window; }

private:
    QWidget m_window;
    QVBoxLayout* m_layout = nullptr;
};

/// The visible button with this text or accessible name; null when there is none.
inline QAbstractButton* button(const QWidget* parent, const QString& name)
{
    for (auto* candidate : parent->findChildren<QAbstractButton*>())
        if (candidate->isVisible() && (candidate->text() == name || candidate->accessibleName() == name))
            return candidate;
    return nullptr;
}

inline void click(QAbstractButton* target)
{
    QVERIFY(target);
    QTest::mouseClick(target, Qt::LeftButton);
}

/// The texts of all labels that can be seen in a widget, from the top.
inline QStringList labels(const QWidget* widget)
{
    QStringList texts;
    for (const QLabel* label : widget->findChildren<QLabel*>())
        if (label->isVisible() && !label->text().isEmpty())
            texts.append(label->text());
    return texts;
}

/// The glyphs that a text is drawn with; of its letters alone, or as the font's rules make them.
inline QList<quint32> glyphs(const QString& text, const QFont& font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    QList<quint32> indexes;
    for (const QGlyphRun& run : layout.glyphRuns())
        indexes.append(run.glyphIndexes());
    return indexes;
}

/// Whether the font's rules put other glyphs in the place of those of the letters.
inline bool isAltered(const QString& text, const QFont& font)
{
    const QRawFont face = QRawFont::fromFont(font);
    return face.supportsCharacter(text.at(0)) && glyphs(text, font) != face.glyphIndexesForString(text);
}

inline QColor colorAt(QWidget* widget, QPoint pos)
{
    const QImage image = widget->grab().toImage();
    return image.pixelColor((QPointF(pos) * image.devicePixelRatio()).toPoint());
}

/// How many pixels of the picture are about this colour.
inline int pixelsLike(const QImage& image, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            const int distance = std::abs(c.red() - color.red()) + std::abs(c.green() - color.green())
                + std::abs(c.blue() - color.blue());
            count += distance < 12 ? 1 : 0;
        }
    }
    return count;
}

inline qreal luminance(const QColor& color)
{
    const auto linear = [](qreal v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// The contrast ratio of two opaque colours, 1…21, as the web's accessibility guidelines define it.
inline qreal contrast(const QColor& a, const QColor& b)
{
    const qreal x = luminance(a);
    const qreal y = luminance(b);
    return (qMax(x, y) + 0.05) / (qMin(x, y) + 0.05);
}

}  // namespace Quorbel::Test
