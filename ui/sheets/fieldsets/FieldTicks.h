// All fields with two ticks each: on screen, and wanted. Thread: the main thread. Knows no model.
#pragma once

#include "app/model/fieldsets/FieldSet.h"

#include <QTreeWidget>

namespace Quorbel {

/// Under the headings of the form's sections. Arrows go through the fields and from tick to tick, Space changes the
/// tick, a click does, too. What is wanted is on screen.
class FieldTicks final : public QTreeWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FieldTicks)

public:
    static constexpr qreal tickWidth = 68;  ///< points, of a column of ticks

    explicit FieldTicks(QWidget* parent = nullptr);
    /// Emits nothing.
    void setTicked(const QStringList& fields, const QSet<QString>& wanted);
    void setFixed(bool fixed);
    /// Only fields whose name or description holds the text are listed.
    void setNeedle(const QString& text);
    QSize sizeHint() const override;

signals:
    void ticked(const QString& id, bool onScreen, bool wanted);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fill();
    void take(QTreeWidgetItem* item, int column);
    void tellTicks(const QTreeWidgetItem& item);

    bool m_isFixed = false;
    bool m_isShowing = false;
};

}  // namespace Quorbel
