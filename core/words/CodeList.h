// What short codes stand for, from a text of tab-separated lines: "js", a tab, "Jane Smith, goalkeeper".
// Thread: any. A plain value. Knows no file.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace Quorbel {

class CodeList final {
public:
    static constexpr qsizetype largest = 16LL * 1024 * 1024;  ///< bytes of a text
    static constexpr qsizetype longestCode = 64;  ///< characters
    /// Of the lines that something is wrong with, so many are told of; of the others, how many they are.
    static constexpr qsizetype mostNotes = 5;

    /// Each line: a code, a tab, its text; further columns play no part. Empty lines do not either, nor do lines
    /// without a tab that begin with "#". UTF-8, UTF-16 with a byte order mark, or else Windows Latin 1. Of a code that
    /// is there twice the last line counts.
    static CodeList parse(const QByteArray& bytes);

    qsizetype count() const { return m_texts.size(); }
    /// What is wrong with the text, a line each for the user; none where all is well.
    const QStringList& notes() const { return m_notes; }
    /// The text of this code, or of the only code that differs from it in case alone. Nothing for any other.
    std::optional<QString> text(const QString& code) const;

    bool operator==(const CodeList&) const = default;

private:
    void take(const QString& line, int number);
    void note(const QString& text);

    QHash<QString, QString> m_texts;
    QHash<QString, QStringList> m_spellings;  ///< codes as they are spelled, by their folded form
    QHash<QString, int> m_lines;  ///< the line of each code
    QStringList m_notes;
    qsizetype m_untold = 0;
};

}  // namespace Quorbel
