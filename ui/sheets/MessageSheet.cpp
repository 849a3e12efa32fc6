#include "ui/sheets/MessageSheet.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/sheets/SheetParts.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Quorbel {

MessageSheet::MessageSheet(const QString& icon, const QString& message, const QString& informativeText,
    const QStringList& buttons, QWidget* parent)
    : SheetBody(parent)
    , m_last(buttons.size() - 1)
{
    setAccessibleName(message);
    setAccessibleDescription(informativeText);
    auto* row = new QHBoxLayout(this);
    row->addWidget(new SymbolTile(icon), 0, Qt::AlignTop);
    auto* column = new QVBoxLayout;
    auto* title = ThemedLabel::wrapped(message, TextRole::text, 15, QFont::DemiBold);
    auto* text = ThemedLabel::wrapped(informativeText, TextRole::label, 13);
    for (ThemedLabel* label : { title, text }) {
        label->setVerbatim(true);  // both may name photos
        column->addWidget(label);
    }
    QHBoxLayout* line = sheetButtonRow(this, makeButtons(buttons));
    column->addLayout(line);
    row->addLayout(column, 1);
    frameSheet(this, row);
    onRestyle(this, [=] {
        row->setSpacing(px(16));
        column->setSpacing(px(5));
        line->setContentsMargins(0, px(22 - 5), 0, 0);
    });
}

// The default button stands at the right.
QList<QBButton*> MessageSheet::makeButtons(const QStringList& titles)
{
    QList<QBButton*> buttons;
    for (qsizetype i = titles.size() - 1; i >= 0; --i) {
        buttons.append(new QBButton(titles.at(i), i == 0 ? QBButtonKind::primary : QBButtonKind::secondary));
        connect(buttons.last(), &QAbstractButton::clicked, this, [this, i] { emit answered(i); });
    }
    return buttons;
}

void MessageSheet::confirm()
{
    emit answered(0);
}

void MessageSheet::cancel()
{
    emit answered(m_last);
}

void presentMessage(SheetHost& host, const QString& icon, const QString& message, const QString& informativeText,
    const QStringList& buttons, const std::function<void(qsizetype)>& answered)
{
    auto* sheet = new MessageSheet(icon, message, informativeText, buttons);
    QObject::connect(sheet, &MessageSheet::answered, &host, [&host, sheet, answered](qsizetype button) {
        host.dismiss(sheet);
        if (answered)
            answered(button);
    });
    host.present(sheet);
}

}  // namespace Quorbel
