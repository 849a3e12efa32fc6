#include "ui/inspector/iptc/StructureCard.h"

#include "core/iptc/StructureText.h"
#include "core/language/Texts.h"
#include "ui/inspector/iptc/CardTexts.h"
#include "ui/inspector/iptc/StructureFields.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

StructureCard::StructureCard(const StructureSpec& structure, const CodeTexts& codes, QWidget* parent)
    : QObject(parent)
    , m_structure(structure)
    , m_codes(codes)
    , m_untitled(CardTexts::untitled(structure))
    , m_widget(new ItemCard(Texts::shown(structure.item), parent))
{
    showSummary();
}

StructureCard::~StructureCard()
{
    delete m_widget;
}

void StructureCard::setText(const QString& text, bool fresh)
{
    if (!fresh && text == m_text)
        return;
    m_text = text;
    if (m_fields)
        m_fields->show(text, fresh);
    showSummary();
}

void StructureCard::setSpoken(const QString& spoken)
{
    if (spoken == m_spoken)
        return;
    m_spoken = spoken;
    showSummary();
}

void StructureCard::setUntitled(const QString& title)
{
    m_untitled = title;
    showSummary();
}

void StructureCard::showSummary()
{
    const QString title = StructureText::title(m_structure, m_text);
    const QString shown = title.isEmpty() ? m_untitled : title;
    m_widget->setSummary({ shown, StructureText::subtitle(m_structure, m_text) });
    const bool isSame = m_spoken.isEmpty() || m_spoken == shown;
    const QString name = isSame ? shown : Texts::tr("%1: %2").arg(m_spoken, shown);
    m_widget->setAccessibleName(name);
    m_widget->input()->setAccessibleName(name);
}

bool StructureCard::isOpen() const
{
    return m_widget->isOpen();
}

void StructureCard::setOpen(bool open)
{
    if (open == isOpen())
        return;
    if (open && !m_fields)
        makeFields();
    else if (open)
        m_fields->show(m_text, true);
    m_widget->setOpen(open);
    emit tabStopsChanged();
}

void StructureCard::makeFields()
{
    m_fields = new StructureFields(m_structure, m_codes);
    m_fields->setReadOnly(m_readOnly);
    m_fields->setStart(m_start);
    m_fields->show(m_text, true);
    m_fields->setOrigin(m_origin);
    m_widget->setContent(m_fields);
    connect(m_fields, &StructureFields::startAsked, this, &StructureCard::startAsked);
    connect(m_fields, &StructureFields::tabStopsChanged, this, &StructureCard::tabStopsChanged);
    connect(m_fields, &StructureFields::textChanged, this, [this](const QString& text) {
        m_text = text;
        showSummary();
        emit textChanged();
    });
}

void StructureCard::setReadOnly(bool on)
{
    m_readOnly = on;
    if (m_fields)
        m_fields->setReadOnly(on);
}

void StructureCard::setOrigin(const std::optional<QString>& origin)
{
    m_origin = origin;
    if (m_fields)
        m_fields->setOrigin(origin);
}

void StructureCard::setStart(const QString& title)
{
    m_start = title;
    if (m_fields)
        m_fields->setStart(title);
}

bool StructureCard::holds(const QWidget* focus) const
{
    // Beyond windows: lists and menus that were opened from it have it as their parent.
    for (const QObject* around = focus; around; around = around->parent())
        if (around == m_widget)
            return true;
    return false;
}

QList<QWidget*> StructureCard::tabStops() const
{
    QList<QWidget*> stops = m_widget->tabStops();
    if (m_fields && isOpen())
        stops.append(m_fields->tabStops());
    return stops;
}

}  // namespace Quorbel
