// Tooltips in our own look for every widget of the program.
// Thread: the main thread. The program makes one and keeps it; without one, Qt's own tooltips show.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace Quorbel {

class ToolTips final : public QObject {
    Q_OBJECT

public:
    /// Watches the application for as long as it lives.
    explicit ToolTips(QObject* parent = nullptr);
    ~ToolTips() override;
    /// Draws the lines behind the first one of this widget's tooltip quieter.
    static void setRestQuiet(QWidget* widget);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(QWidget* widget, const QString& text, const QPoint& globalPos);
    void hide();

    QPointer<QWidget> m_tip;
};

}  // namespace Quorbel
