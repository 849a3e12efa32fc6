// How a text with tokens describes itself to screen readers: as editable text in which each token says its name.
// Thread: the main thread.
#pragma once

#include <QAccessibleWidget>
#include <QPointer>

namespace Quorbel {

class TokenEdit;

/// Positions are those of the field, where a token counts as one letter; the texts hold its name instead.
class TokenEditAccess final : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit TokenEditAccess(TokenEdit* edit);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override { }
    QAccessible::State state() const override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* start, int* end) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* start, int* end) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* start, int* end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;

private:
    QString part(int from, int to, int* start, int* end) const;

    QPointer<TokenEdit> m_edit;
};

}  // namespace Quorbel
