// Says after a save that was not asked about that it broke the seal of photos with Content Credentials: once for each
// run of the program, in the banner, and not over another message.
// Thread: the main thread.
#pragma once

#include <QList>
#include <QObject>
#include <QSet>
#include <QUrl>

namespace Quorbel {

class AppModel;

class CredentialsNotice final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CredentialsNotice)

public:
    explicit CredentialsNotice(AppModel& model);

    /// What there is to know before so many photos with Content Credentials are written into; "" for none.
    static QString text(int photos);
    /// The save dialog was confirmed: where it said so, there is nothing more to say.
    void noteConfirmed() { m_isTold = m_isTold || m_isAsked; }
    /// These were written into. Of those that nobody has looked at yet it is said once somebody did: the seal stays in
    /// the file.
    void noteWritten(const QList<QUrl>& photos);
    /// What these hold may be known by now.
    void noteKnown(const QList<QUrl>& photos);

private:
    void tell();

    AppModel& m_model;
    QSet<QUrl> m_unknown;  ///< written into, and not looked at since
    int m_sealed = 0;  ///< written into, and not told of
    bool m_isAsked = false;  ///< the save dialog that was opened last says it
    bool m_isTold = false;
};

}  // namespace Quorbel
