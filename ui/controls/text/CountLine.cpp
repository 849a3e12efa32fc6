#include "ui/controls/text/CountLine.h"

#include "core/language/Texts.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/theme/Metrics.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QTextBoundaryFinder>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal lineHeight = 15;
constexpr qreal gap = 12;

int characters(const QString& text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int count = 0;
    while (finder.toNextBoundary() >= 0)
        ++count;
    return count;
}

}  // namespace

CountLine::CountLine(const QString& help, int limit, QWidget* parent)
    : QWidget(parent)
    , m_limit(limit)
    , m_help(new WrappedLine(TextRole::label, 11, lineHeight, this))
    , m_number(new ThemedLabel({}, TextRole::label, 11, QFont::Normal, this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_number->setLineHeight(lineHeight);
    m_number->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_help, 1, Qt::AlignTop);
    line->addWidget(m_number, 0, Qt::AlignTop);
    onRestyle(this, [line] { line->setSpacing(px(gap)); });
    setHelp(help);
    showCount(0);
}

void CountLine::setHelp(const QString& text)
{
    m_help->setText(text);
}

void CountLine::setText(const QString& text)
{
    showCount(characters(text));
}

void CountLine::follow(QBTextArea& area)
{
    connect(&area, &QPlainTextEdit::textChanged, this, [this, &area] { setText(area.text()); });
    setText(area.text());
}

void CountLine::showCount(int count)
{
    if (count == m_count)
        return;
    const bool wasBeyond = m_count >= 0 && isBeyond();
    m_count = count;
    m_number->setText(Texts::tr("%1 of %2").arg(count).arg(m_limit));
    //: Of a text. %1: how many characters it has, %n: how many it should have at most.
    m_number->setAccessibleName(Texts::tr("%1 of %n characters", nullptr, m_limit).arg(count));
    m_number->setRole(isBeyond() ? TextRole::amberText : TextRole::label);
    if (!isBeyond() || wasBeyond || !isVisible())
        return;
    // Said once, at the character that is too many.
    QAccessibleEvent event(m_number, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

}  // namespace Quorbel
