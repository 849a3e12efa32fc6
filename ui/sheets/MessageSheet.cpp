#include "ui/sheets/MessageSheet.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/sheets/SheetParts.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Quorbel {

namespace {

// Points.
constexpr qreal sheetWidth = 470;
constexpr qreal padding = 24;

}  // namespace

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
    auto* title = new ThemedLabel(message, TextRole::text, 15, QFont::DemiBold);
    title->setWordWrap(true);
    auto* text = new ThemedLabel(informativeText, TextRole::label, 13);
    text->setWordWrap(true);
    column->addWidget(title);
    column->addWidget(text);
    auto* line = new QHBoxLayout;
    addButtons(line, buttons);
    column->addLayout(line);
    row->addLayout(column, 1);
    onRestyle(this, [=, this] {
        setFixedWidth(px(sheetWidth));
        row->setContentsMargins(px(padding), px(padding), px(padding), px(padding));
        row->setSpacing(px(16));
        column->setSpacing(px(5));
        line->setSpacing(px(8));
        line->setContentsMargins(0, px(22 - 5), 0, 0);
    });
}

// The default button stands at the right.
void MessageSheet::addButtons(QHBoxLayout* line, const QStringList& buttons)
{
    line->addStretch();
    for (qsizetype i = buttons.size() - 1; i >= 0; --i) {
        auto* button = new QBButton(buttons.at(i), i == 0 ? QBButtonKind::primary : QBButtonKind::secondary);
        connect(button, &QAbstractButton::clicked, this, [this, i] { emit answered(i); });
        line->addWidget(button);
    }
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
    const QStringList& buttons, std::function<void(qsizetype)> answered)
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
