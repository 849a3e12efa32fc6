// One of a few choices, all of which are seen. Thread: the main thread. Knows nothing of what they mean.
#pragma once

#include <QStringList>
#include <QWidget>

namespace Quorbel {

/// One of a few choices side by side, 216×30 points unless it is made wider or its titles are. Left and Right change
/// it. To screen readers it is a group of radio buttons.
class SegmentedPicker final : public QWidget {
    Q_OBJECT

public:
    explicit SegmentedPicker(const QStringList& titles, QWidget* parent = nullptr);
    int currentIndex() const { return m_current; }
    /// Shows a choice; emits nothing.
    void setCurrentIndex(int index);
    const QStringList& titles() const { return m_titles; }
    /// What screen readers call the choices; without these, as they are titled.
    void setSpoken(const QStringList& names) { m_spoken = names; }
    QString spoken(int index) const { return m_spoken.value(index, m_titles.value(index)); }
    /// In points.
    void setWidth(qreal width);
    void setMono(bool mono);
    QRectF segment(int index) const;
    /// As if the user picked it.
    void pick(int index);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The user picked another choice.
    void picked(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    QList<qreal> needs() const;
    void tellFocus();

    QStringList m_titles;
    QStringList m_spoken;
    qreal m_width = 216;  // points
    bool m_isMono = false;
    int m_current = 0;
};

}  // namespace Quorbel
