// Which photos hold a text in any field: how far a look at all of them is, and what it looks for.
// Thread: the main thread. Reads nothing; whoever goes through the photos asks it of each.
#pragma once

#include "app/model/library/filter/RecordTraits.h"

#include <QStringMatcher>

namespace Quorbel {

/// Upper and lower case are one, as in the search for names. A fifty-thousandth part of the work is one photo, so it
/// needs neither a copy of all texts nor another thread: the main one does a little of it at a time.
class TextFinding final {
public:
    int at = 0;  ///< position of the photo that is looked at next

    /// A look at all photos begins; an earlier one is given up.
    void begin(const QString& text);
    bool isRunning() const { return m_isRunning; }
    /// A text was found, or is being looked for.
    bool isOn() const { return m_isRunning || !m_found.pattern().isEmpty(); }
    /// What holds the text holds the one that was found last.
    bool isNarrowing() const { return m_isNarrowing; }
    /// Whether a photo holds the text that is being looked for, and the one that was found last.
    bool isNext(const ImageRecord& photo) const;
    bool isFound(const ImageRecord& photo) const;
    /// All were looked at. The text.
    QString end();

private:
    QStringMatcher m_found{ QString(), Qt::CaseInsensitive };
    QStringMatcher m_next{ QString(), Qt::CaseInsensitive };
    bool m_isRunning = false;
    bool m_isNarrowing = false;
};

}  // namespace Quorbel
