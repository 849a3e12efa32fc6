// "Some fields could not be read (took too long) · Try again": below a photo's header, while that is so.
// Thread: the main thread. Shows the model and calls it.
#pragma once

#include "app/model/library/details/DetailsFailures.h"

#include <QWidget>

namespace Quorbel {

class AppModel;
class NoticeLine;
class QBTextButton;

class UnreadNotice final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UnreadNotice)

public:
    explicit UnreadNotice(AppModel& model, QWidget* parent = nullptr);
    /// Reads the model again; hides itself where there is nothing to tell.
    void refresh();
    QBTextButton* tryAgain() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();

    AppModel& m_model;
    NoticeLine* m_line;
    std::optional<QUrl> m_photo;
    std::optional<DetailsFailure> m_told;  ///< of that photo
};

}  // namespace Quorbel
