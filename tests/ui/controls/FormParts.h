// A form of all that folds, holds codes and counts, to look at and to measure. For tests only.
#pragma once

#include "tests/ui/UiSupport.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/cards/CardRow.h"
#include "ui/controls/cards/EditedDot.h"
#include "ui/controls/cards/FoldingHeading.h"
#include "ui/controls/cards/ItemCard.h"
#include "ui/controls/keywords/KeywordEditor.h"
#include "ui/controls/pickers/CodePicker.h"
#include "ui/controls/pickers/CodesPicker.h"
#include "ui/controls/text/CountLine.h"
#include "ui/controls/theme/Metrics.h"

#include <QAction>
#include <QHBoxLayout>

namespace Quorbel::Test {

/// Twenty codes, c1 to c20; four of them have "captu" in their names.
inline CodeSource codes()
{
    QList<CodeRow> all{ { u"c1"_s, u"Digital capture sampled from real life"_s, u"Taken with a camera"_s },
        { u"c2"_s, u"Multi-frame computational capture"_s, u"Several frames of one moment joined by the camera"_s },
        { u"c3"_s, u"Negative, captured from film"_s, u"A film negative turned into a digital picture"_s },
        { u"c4"_s, u"Screen capture"_s, u"What a display showed"_s } };
    for (int i = 5; i <= 20; ++i)
        all.append({ u"c%1"_s.arg(i), u"Drawn by hand, number %1"_s.arg(i), u"With a pen"_s });
    CodeSource source;
    source.footer = u"stored as a code"_s;
    source.rows = [all](const QString& typed) {
        QList<CodeRow> found = all;
        found.removeIf([&](const CodeRow& row) { return !row.name.contains(typed, Qt::CaseInsensitive); });
        return found;
    };
    return source;
}

/// A window with one of each, as a form stands in it. The theme is the window's.
class FormParts {
public:
    explicit FormParts(const Theme& theme, int width = 520)
    {
        qputenv("QUORBEL_REDUCE_MOTION", "1");
        setTheme(&m_window, theme);
        m_window.setAutoFillBackground(true);
        QPalette ground = m_window.palette();
        ground.setColor(QPalette::Window, theme.panel);
        m_window.setPalette(ground);
        m_column = new QVBoxLayout(&m_window);
        m_column->setContentsMargins(8, 12, 20, 12);
        m_column->setSpacing(7);
        addFields();
        addFolds();
        m_column->addStretch();
        m_window.resize(width, 860);
    }

    QWidget* window() { return &m_window; }
    FoldingHeading* contact = nullptr;
    FoldingHeading* shown = nullptr;
    ItemCard* open = nullptr;
    ItemCard* folded = nullptr;
    CodePicker* code = nullptr;
    CodesPicker* subjects = nullptr;
    QBTextArea* area = nullptr;
    CountLine* count = nullptr;

private:
    // Beside the labels of a form.
    void addRow(const QString& label, QWidget* editor, QWidget* input, QWidget* below = nullptr)
    {
        auto* row = new CardRow(label, editor, input);
        if (below)
            row->addBelow(below);
        auto* line = new QHBoxLayout;
        line->setContentsMargins(px(EditedDot::room), 0, 0, 0);
        line->addWidget(row);
        m_column->addLayout(line);
    }

    void addFields()
    {
        area = new QBTextArea;
        area->setBoundText(u"A lake at dusk between two dark trees; yellow woods on the far bank."_s);
        count = new CountLine(u"Says what is to be seen, for people who can’t see it."_s, 250);
        count->follow(*area);
        addRow(u"Alternative text"_s, area, area, count);
        auto* credit = new QBTextField;
        credit->setPlaceholder(u"Required by Press"_s);
        credit->setWanted(true);
        addRow(u"Credit line"_s, credit, credit);
        code = new CodePicker(u"Digital source"_s);
        code->setSource(codes());
        code->setCode(u"c1"_s);
        addRow(u"Digital source"_s, code, code);
        auto* gap = new CodePicker(u"Data mining"_s);
        gap->setPlaceholder(u"Required by Press"_s);
        gap->setWanted(true);
        addRow(u"Data mining"_s, gap, gap);
        subjects = new CodesPicker(u"Subjects"_s, u"Add subject"_s);
        subjects->setSource(codes());
        subjects->setCodes({ u"c4"_s, u"c3"_s, u"http://x.y/9x9"_s });
        addRow(u"Subject codes"_s, subjects, subjects->input());
    }

    void addFolds()
    {
        contact = addHeading(u"CONTACT"_s, { u"Mara Lindqvist"_s, u"Zürich · 1 phone, 1 e-mail"_s });
        contact->setEdited(true);
        addHeading(u"PEOPLE"_s, { u"Ana Lima, Bo Ek"_s, {} });
        shown = addHeading(u"LOCATION SHOWN"_s, { u"Rapperswil-Jona"_s, u"1 more"_s });
        shown->setCount(u"2 places"_s);
        shown->setOpen(true);
        open = addCard({ u"Rapperswil-Jona"_s, u"St. Gallen, Switzerland"_s });
        open->setContent(makeContent());
        open->setOpen(true);
        open->setEdited(true);
        folded = addCard({ u"Horn"_s, u"Thurgau, Switzerland"_s });
        addHeading(u"RIGHTS"_s, { u"Rights-managed"_s, {} });
    }

    FoldingHeading* addHeading(const QString& title, const Summary& summary)
    {
        auto* heading = new FoldingHeading(title);
        heading->setSummary(summary);
        m_column->addWidget(heading);
        return heading;
    }

    ItemCard* addCard(const Summary& summary)
    {
        auto* card = new ItemCard(u"place"_s);
        card->setSummary(summary);
        card->addAction(new QAction(u"Copy from Location"_s, card));
        m_column->addWidget(card);
        return card;
    }

    static QWidget* makeContent()
    {
        auto* content = new QWidget;
        auto* rows = new QVBoxLayout(content);
        rows->setContentsMargins(0, 0, 0, 0);
        rows->setSpacing(7);
        for (const auto& [label, text] : { std::pair(u"Sublocation"_s, u"Lake promenade"_s),
                 std::pair(u"City"_s, u"Rapperswil-Jona"_s), std::pair(u"State"_s, u"St. Gallen"_s) }) {
            auto* field = new QBTextField;
            field->setText(text);
            rows->addWidget(new CardRow(label, field, field));
        }
        return content;
    }

    QWidget m_window;
    QVBoxLayout* m_column = nullptr;
};

}  // namespace Quorbel::Test
