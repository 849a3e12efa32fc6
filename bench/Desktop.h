// A desktop of its own, for benchmarks of whole programs: an X server without a screen, whose picture can be looked at
// without asking it, a window manager that gives every window the whole of it, and a session bus.
// Thread: the benchmark's. They end with this object.
#pragma once

#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace Quorbel::Bench {

class Desktop {
public:
    static constexpr QSize size{ 1600, 1000 };

    Desktop();
    ~Desktop();
    Q_DISABLE_COPY_MOVE(Desktop)

    /// Whether all of it is there.
    bool isRunning() const { return m_isRunning; }
    /// For a program with this home.
    QProcessEnvironment environment(const QString& home) const;
    /// The screen as it is now.
    QImage picture() const;

private:
    QTemporaryDir m_work;
    QProcess m_server;
    QProcess m_manager;
    QProcess m_bus;
    QString m_display;
    QString m_busAddress;
    bool m_isRunning = false;
};

}  // namespace Quorbel::Bench
