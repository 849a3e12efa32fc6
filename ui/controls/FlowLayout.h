// Lays items out left to right and wraps them into lines. Thread: the main thread.
#pragma once

#include <QLayout>

namespace Quorbel {

/// Every item at its ideal size. One wider than the whole width gets a line of its own and is not shrunk.
class FlowLayout final : public QLayout {
    Q_OBJECT

public:
    /// `spacing` in device-independent pixels, between items and between lines.
    explicit FlowLayout(int spacing, QWidget* parent = nullptr);
    ~FlowLayout() override;
    /// Lets the last item of the layout take what is left of its line; for an entry field behind chips.
    void setLastItemFills(bool fills);
    /// How many lines items of these widths take.
    static int lines(const QList<int>& widths, int available, int spacing);
    void insertWidget(int index, QWidget* widget);

    void addItem(QLayoutItem* item) override;
    int count() const override { return int(m_items.size()); }
    QLayoutItem* itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem* takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    /// The height that the items need in this width.
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& rect) override;
    Qt::Orientations expandingDirections() const override { return {}; }

private:
    QList<QLayoutItem*> m_items;
    bool m_lastItemFills = false;
};

}  // namespace Quorbel
