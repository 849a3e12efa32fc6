// The upper end of the inspector's form: of one photo its header, of several the banner; in both the picker of field
// sets. Thread: the main thread. Shows the model and calls it; knows no rows.
#pragma once

#include <QWidget>

namespace Quorbel {

class AppModel;
class BatchBanner;
class ChoicePicker;
class PhotoHeader;
class ThumbnailStore;
class UnreadNotice;

class FormHead final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormHead)

public:
    /// The store may be null; both must outlive this.
    FormHead(AppModel& model, ThumbnailStore* thumbs, QWidget* parent = nullptr);
    /// Reads the model again.
    void refresh();
    QList<QWidget*> tabStops() const;

private:
    AppModel& m_model;
    PhotoHeader* m_header;
    BatchBanner* m_banner;
    UnreadNotice* m_unread;
    ChoicePicker* m_picker;
    ChoicePicker* m_batchPicker;  ///< the same, in the banner
};

}  // namespace Quorbel
