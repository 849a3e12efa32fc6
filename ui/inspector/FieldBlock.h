// Keeps the place of a field whose value is not known: no border and no motion.
// Thread: the main thread.
#pragma once

#include <QWidget>

namespace Quorbel {

class FieldBlock final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FieldBlock)

public:
    explicit FieldBlock(QWidget* parent = nullptr);
    /// Why it will not be known; "" while it may be.
    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
};

}  // namespace Quorbel
