// A row without a tick under a row of the inspector that has one: a small label, and what it is about.
// Thread: the main thread.
#pragma once

#include <QWidget>

class QHBoxLayout;
class QVBoxLayout;

namespace Quorbel {

class ThemedLabel;

class SubRow final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SubRow)

public:
    /// Takes the content over.
    explicit SubRow(QWidget* content, QWidget* parent = nullptr);
    void setLabel(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void restyle();

    QWidget* m_content;
    QHBoxLayout* m_line;
    QVBoxLayout* m_column;
    ThemedLabel* m_label;
    bool m_stacked = false;  ///< the label stands over the content, as in the row above
};

}  // namespace Quorbel
