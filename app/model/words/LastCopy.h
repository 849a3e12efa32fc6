// The file in which copied fields outlive the program: a clipboard goes with the program that owns it.
// Thread: the main thread; it is written in the background. Knows no clipboard.
#pragma once

#include <QByteArray>
#include <QObject>

#include <optional>

namespace Quorbel {

class LastCopy final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LastCopy)

public:
    /// Absolute; empty: nothing outlives the program.
    explicit LastCopy(const QString& path);
    ~LastCopy() override;

    /// Replaces what was kept.
    void keep(const QByteArray& text);
    /// What was kept last, here or by another program that runs; nothing where there is none.
    QByteArray text() const;

private:
    void write();

    QString m_path;
    QByteArray m_kept;
    bool m_isWriting = false;
    bool m_isStale = false;  ///< something else is to be written than what is being written
};

}  // namespace Quorbel
