// What several sheets are made of. Thread: the main thread.
#pragma once

#include <QList>
#include <QWidget>

class QHBoxLayout;
class QLayout;
class QVBoxLayout;

namespace Quorbel {

class QBButton;
class SheetBody;

// Points.
constexpr qreal sheetWidth = 470;
constexpr qreal sheetPadding = 24;

/// Gives a sheet its width and its column the padding.
void frameSheet(SheetBody* sheet, QLayout* column, qreal width = sheetWidth);

/// The amber square with a symbol at the left of a message.
class SymbolTile final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SymbolTile)

public:
    static constexpr qreal side = 46;  // points

    explicit SymbolTile(const QString& icon, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_icon;
};

struct SheetPart {
    QWidget* widget = nullptr;
    qreal below = 0;  ///< points left free below it
    Qt::Alignment alignment{};
};
/// Stacks the parts in a column of a sheet.
void stackParts(QWidget* sheet, QVBoxLayout* column, const QList<SheetPart>& parts);

/// Buttons at the right, 8 points apart, the first one leftmost.
QHBoxLayout* sheetButtonRow(QWidget* sheet, const QList<QBButton*>& buttons);

}  // namespace Quorbel
