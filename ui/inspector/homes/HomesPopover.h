// The places in which a field stands, with what each holds: which one is shown, and a button to take another one.
// Thread: the main thread. Knows no model: what it shows comes in, what is chosen goes out.
#pragma once

#include "core/schema/PhotoDetails.h"
#include "ui/controls/attached/Popover.h"

class QVBoxLayout;

namespace Quorbel {

class HomeRow;
class QBTextButton;
class ScrollArea;

/// Up and Down go through the places, Return takes one; both close it.
class HomesPopover final : public Popover {
    Q_OBJECT

public:
    /// `field` is the field's name.
    HomesPopover(const QString& field, QWidget* opener);
    /// Before it is opened, or while it is open.
    void setHomes(const QList<FieldHome>& homes);
    /// Whether "Make them agree" stands at its foot.
    void setCanAgree(bool on);
    const QList<HomeRow*>& rows() const { return m_rows; }

signals:
    void used(const Quorbel::FieldHome& home);
    void agreeAsked();

protected:
    int heightIn(int width) override;
    void arrange(const QRect& box) override;
    void showEvent(QShowEvent* event) override;

private:
    int layRows(int width, int roomAtRight);
    void use(const FieldHome& home);
    void step(int by);
    void start();

    QList<FieldHome> m_homes;
    QList<HomeRow*> m_rows;
    ScrollArea* m_scroll;
    QWidget* m_content;
    QVBoxLayout* m_column;
    QBTextButton* m_agree;
};

}  // namespace Quorbel
