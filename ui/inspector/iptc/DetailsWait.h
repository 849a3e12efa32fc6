// How long the inspector has been waiting for what a photo holds beside its record.
// Thread: the main thread. Asks the model; knows no rows.
#pragma once

#include <QObject>
#include <QTimer>

namespace Quorbel {

class AppModel;

/// For a moment what is on screen of the photo before may stay, out of reach: in a quick walk through photos nothing
/// comes and goes. After that it is to be seen that something is being read.
class DetailsWait final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DetailsWait)

public:
    explicit DetailsWait(const AppModel& model, QObject* parent = nullptr);
    /// To be called before the form is filled; `fresh`: with another photo.
    void follow(bool fresh);
    bool isOn() const { return m_isOn; }
    /// What is on screen stays as it is.
    bool isHolding() const { return m_isOn && m_late.isActive(); }
    /// The form is filled with what is known now, for the first time.
    bool hasJustEnded() const { return m_hasJustEnded; }

signals:
    /// It takes longer.
    void late();

private:
    const AppModel& m_model;
    QTimer m_late;
    bool m_isOn = false;
    bool m_wasBatch = false;
    bool m_hasJustEnded = false;
};

}  // namespace Quorbel
