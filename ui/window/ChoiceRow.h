// A setting with a few choices, all of which are seen: its name, the choices beside it, or below where there is no
// room, and what the current one means. Thread: the main thread. Knows nothing of the setting.
#pragma once

#include <QStringList>
#include <QWidget>

class QBoxLayout;

namespace Quorbel {

class SegmentedPicker;
class ThemedLabel;
class WrappedLine;

class ChoiceRow final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ChoiceRow)

public:
    ChoiceRow(const QString& name, const QStringList& choices, QWidget* parent = nullptr);
    SegmentedPicker& picker() const { return *m_picker; }
    void setHelp(const QString& text);
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();

    ThemedLabel* m_name;
    SegmentedPicker* m_picker;
    WrappedLine* m_help;
    QBoxLayout* m_line;
};

}  // namespace Quorbel
