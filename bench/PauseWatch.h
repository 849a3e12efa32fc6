// Finds what keeps the main thread from its events: one turn of the event loop at a time, and in it the longest
// single events. Thread: the main thread.
#pragma once

#include <QApplication>
#include <QByteArray>

#include <functional>
#include <vector>

namespace Quorbel::Bench {

class PauseWatch final : public QApplication {
public:
    /// Draws off screen unless QT_QPA_PLATFORM says otherwise; rows are printed as they come.
    PauseWatch(int& argc, char* argv[]);

    struct Turn {
        double wall = 0;  ///< milliseconds
        double cpu = 0;  ///< milliseconds of this thread
    };
    struct Event {
        double wall = 0;  ///< milliseconds
        double cpu = 0;  ///< milliseconds of this thread
        QByteArray what{};  ///< receiver and kind
    };

    /// Forgets what was seen so far.
    void begin();
    /// Does this as if an event had brought it.
    void handle(const std::function<void()>& work);
    /// Handles what is there, then sleeps for half a millisecond.
    void turn();
    Turn longest() const { return m_longest; }
    /// How many turns took longer than that, milliseconds.
    int longerThan(double limit) const;
    /// The events that took longest, the longest first.
    const std::vector<Event>& longestEvents() const { return m_events; }
    void printLongestEvents() const;

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void note(const std::function<void()>& work);

    Turn m_longest{};
    std::vector<double> m_turns;
    std::vector<Event> m_events;
    int m_depth = 0;
};

}  // namespace Quorbel::Bench
