// Shifts the times of the selected photos: by an amount, by what one of them should show, or to another time zone.
// Thread: the main thread. Shows the model's TimeShifting and calls it.
#pragma once

#include "ui/sheets/Sheet.h"

#include <QPointer>

class QStackedWidget;

namespace Quorbel {

class AppModel;
class Pairing;
class PickerButton;
class QBButton;
class QBCheckbox;
class QBTextButton;
class QBTextField;
class SegmentedPicker;
class ShiftTable;
class ThemedLabel;
class ThumbnailStore;
class ThumbnailView;
class TimeShifting;
class WrappedLine;

class ShiftTimeSheet final : public SheetBody {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ShiftTimeSheet)

public:
    /// Both must outlive this; the store may be null.
    ShiftTimeSheet(AppModel& model, ThumbnailStore* thumbs, QWidget* parent = nullptr);

    QString title() const override;
    void confirm() override;
    void cancel() override;
    QWidget* initialFocus() override;

private:
    QWidget* buildAmount();
    QWidget* buildKnown(ThumbnailStore* thumbs);
    QWidget* buildZone();
    QWidget* buildNotes();
    void takeAmount();
    void chooseKnown();
    void chooseZone();
    void refresh();
    void refreshForms();
    void refreshNotes();

    const Pairing& m_pairing;
    TimeShifting& m_shifting;
    int m_photos;
    SegmentedPicker* m_way;
    QStackedWidget* m_forms;
    SegmentedPicker* m_direction;
    QList<QBTextField*> m_amount;  ///< days, hours, minutes, seconds
    WrappedLine* m_help;
    ThumbnailView* m_thumbnail = nullptr;
    ThemedLabel* m_knownName;
    ThemedLabel* m_knownClock;
    QBButton* m_choose;
    QBTextField* m_knownTime;
    PickerButton* m_zone;
    QBCheckbox* m_keepsClock;
    ShiftTable* m_table;
    ThemedLabel* m_note;
    QBTextButton* m_own;
    QWidget* m_warningLine = nullptr;
    WrappedLine* m_warning;
    QBButton* m_shift;
};

}  // namespace Quorbel
