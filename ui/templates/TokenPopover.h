// What is behind a token in a text: the form of its value, and what stands in its place where a photo has none.
// Thread: the main thread. Knows no model.
#pragma once

#include "core/tokens/TokenText.h"
#include "ui/controls/attached/Popover.h"

class QGridLayout;

namespace Quorbel {

class QBTextField;
class ThemedLabel;

class TokenPopover final : public Popover {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TokenPopover)

public:
    TokenPopover(const Token& token, QWidget* opener);
    const Token& token() const { return m_token; }

signals:
    /// With each key.
    void changed(const Quorbel::Token& token);

protected:
    int heightIn(int width) override;
    void arrange(const QRect& box) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QBTextField* addField(const QString& title, const QString& text, const QString& placeholder);
    void addRow(const QString& title, QWidget* editor);
    void addDateForm();
    void addCounterForm();
    void addCaseForm();
    void setForm(const QString& form);
    void showExample();

    Token m_token;
    QWidget* m_content;
    QGridLayout* m_grid;
    ThemedLabel* m_example = nullptr;
    QList<QBTextField*> m_fields;
};

}  // namespace Quorbel
