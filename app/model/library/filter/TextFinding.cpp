#include "app/model/library/filter/TextFinding.h"

#include <utility>

namespace Quorbel {

namespace {

bool isIn(const QStringMatcher& text, const ImageRecord& photo)
{
    return !text.pattern().isEmpty() && holdsText(photo, text);
}

}  // namespace

void TextFinding::begin(const QString& text)
{
    at = 0;
    m_isRunning = !text.isEmpty();
    m_next.setPattern(text);
    const QString found = m_found.pattern();
    m_isNarrowing = !found.isEmpty() && text.contains(found, Qt::CaseInsensitive);
}

bool TextFinding::isNext(const ImageRecord& photo) const
{
    return isIn(m_next, photo);
}

bool TextFinding::isFound(const ImageRecord& photo) const
{
    return isIn(m_found, photo);
}

QString TextFinding::end()
{
    m_isRunning = false;
    m_found = m_next;
    m_next.setPattern({});
    return m_found.pattern();
}

}  // namespace Quorbel
