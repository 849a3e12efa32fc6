// New names for the selected photos: a pattern, what it makes of each photo's values, and what one should look at.
// Thread: the main thread. Shows the model and calls it.
#pragma once

#include "ui/sheets/Sheet.h"

namespace Quorbel {

class AppModel;
class NumberField;
class PhotosRenaming;
class QBButton;
class QBTextButton;
class QBTextField;
class RenameList;
class ThemedLabel;
class WrappedLine;

class RenamePhotosSheet final : public SheetBody {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RenamePhotosSheet)

public:
    /// The model must outlive this.
    explicit RenamePhotosSheet(AppModel& model, QWidget* parent = nullptr);

    QString title() const override;
    void confirm() override;
    void cancel() override;
    QWidget* initialFocus() override;

private:
    QWidget* buildTokens();
    QWidget* buildCounter();
    QWidget* buildHeading();
    QWidget* buildFoot();
    void connectModel();
    void insertToken(const QString& token);
    void refresh();
    void refreshFoot();

    PhotosRenaming& m_renaming;
    QBTextField* m_pattern;
    QWidget* m_counter;
    NumberField* m_start;
    NumberField* m_step;
    NumberField* m_digits;
    ThemedLabel* m_marked;
    QBTextButton* m_next;
    RenameList* m_list;
    WrappedLine* m_foot;
    QBButton* m_cancel;
    QBButton* m_rename;
};

}  // namespace Quorbel
