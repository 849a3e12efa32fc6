// The line under a text area that is not to become long: what the text is for, and how many characters it has.
// Thread: the main thread. It only counts: nobody is kept from typing on.
#pragma once

#include <QWidget>

namespace Quorbel {

class QBTextArea;
class ThemedLabel;
class WrappedLine;

/// "68 of 250" at the right, in amber beyond that number; the help at its left takes as many lines as it needs.
class CountLine final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CountLine)

public:
    CountLine(const QString& help, int limit, QWidget* parent = nullptr);
    void setHelp(const QString& text);
    /// Characters as they are seen: an emoji of several code points is one.
    void setText(const QString& text);
    /// Counts what is typed there.
    void follow(QBTextArea& area);
    int count() const { return m_count; }
    bool isBeyond() const { return m_count > m_limit; }

private:
    void showCount(int count);

    int m_limit;
    int m_count = -1;
    WrappedLine* m_help;
    ThemedLabel* m_number;
};

}  // namespace Quorbel
