// Labels that keep their whole text readable in a narrow form.
// Thread: the main thread.
#pragma once

#include "ui/controls/Labels.h"

namespace Quorbel {

/// Breaks its text into lines again whenever text, width or font change, and paints them.
class BrokenLabel : public ThemedLabel {
    Q_OBJECT

public:
    /// QLabel's, and works out anew what fits.
    void setText(const QString& text);

protected:
    using ThemedLabel::ThemedLabel;
    virtual void breakText() = 0;
    /// One below the other, the first in this box; what is too wide ends in "…".
    void paintLines(QRect box);
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

    QStringList m_lines;
};

/// One line while the text fits, else two closer ones in the same height; what is longer still ends in "…" and is told
/// by the tooltip.
class TwoLineLabel final : public BrokenLabel {
    Q_OBJECT

public:
    TwoLineLabel(TextRole role, qreal points, QWidget* parent = nullptr);
    QSize minimumSizeHint() const override;

protected:
    void breakText() override;
    void paintEvent(QPaintEvent* event) override;

private:
    qreal m_points;
};

/// As many lines as the text needs in the width it is given; fixes its own height to them.
class WrappedLine final : public BrokenLabel {
    Q_OBJECT

public:
    /// `lineHeight` in points.
    WrappedLine(TextRole role, qreal points, qreal lineHeight, QWidget* parent = nullptr);
    /// Between any two letters, for a text that is one long word; otherwise only at spaces.
    void setBreaksAnywhere(bool on);
    QSize sizeHint() const override { return { 0, height() }; }
    QSize minimumSizeHint() const override { return { 0, height() }; }

protected:
    void breakText() override;
    void paintEvent(QPaintEvent* event) override;

private:
    qreal m_lineHeight;
    bool m_breaksAnywhere = false;
};

}  // namespace Quorbel
