// The tokens that stand under a text, and behind "More…" all of them. Thread: the main thread.
#pragma once

#include "core/tokens/TokenText.h"

#include <QWidget>

namespace Quorbel {

class QBTextButton;

/// As high as its lines. A click leaves the caret in the text.
class TokenPills final : public QWidget {
    Q_OBJECT

public:
    explicit TokenPills(QWidget* parent = nullptr);
    /// What takes Tab, in order.
    const QList<QWidget*>& stops() const { return m_stops; }

signals:
    void picked(const Quorbel::Token& token);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();
    void showAll();

    QBTextButton* m_more;
    QList<QWidget*> m_stops;
};

}  // namespace Quorbel
