// Labels that keep their whole text readable in a narrow form.
// Thread: the main thread.
#pragma once

#include "ui/controls/Labels.h"

namespace Quorbel {

/// One line while the text fits, else two closer ones in the same height; what is longer still ends in "…" and is told
/// by the tooltip.
class TwoLineLabel final : public ThemedLabel {
    Q_OBJECT

public:
    TwoLineLabel(TextRole role, qreal points, QWidget* parent = nullptr);
    /// QLabel's, and works out anew what fits.
    void setText(const QString& text);
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void breakText();

    qreal m_points;
    QStringList m_lines;
};

/// As many lines as the text needs in the width it is given; fixes its own height to them.
class WrappedLine final : public ThemedLabel {
    Q_OBJECT

public:
    /// `lineHeight` in points.
    WrappedLine(TextRole role, qreal points, qreal lineHeight, QWidget* parent = nullptr);
    void setText(const QString& text);
    /// Between any two letters, for a text that is one long word; otherwise only at spaces.
    void setBreaksAnywhere(bool on);
    QSize sizeHint() const override { return { 0, height() }; }
    QSize minimumSizeHint() const override { return { 0, height() }; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void breakText();

    qreal m_lineHeight;
    bool m_breaksAnywhere = false;
    QStringList m_lines;
};

}  // namespace Quorbel
