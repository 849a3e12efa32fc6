// Keywords that one click gives to all selected photos: those that were used last, and named sets.
// Thread: the main thread. Writes nothing: what it gives are edits.
#pragma once

#include <QObject>

namespace Quorbel {

class AppModel;

class QuickKeywords final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuickKeywords)

public:
    explicit QuickKeywords(AppModel& model);
    ~QuickKeywords() override;

private:
    AppModel& m_model;
};

}  // namespace Quorbel
