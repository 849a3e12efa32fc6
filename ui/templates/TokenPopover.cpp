#include "ui/templates/TokenPopover.h"

#include "core/language/Texts.h"
#include "core/tokens/DateForm.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FlowLayout.h"
#include "ui/controls/Labels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/pickers/ChoicePicker.h"
#include "ui/controls/theme/Metrics.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QKeyEvent>
#include <QRegularExpressionValidator>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal padding = 12;  // points

// A day on which every form shows what it does.
constexpr PhotoDate sample{ 2024, 10, 2, 14, 5, 9 };

QStringList usualForms(TokenKind kind)
{
    if (kind == TokenKind::time)
        return { u"HH:mm"_s, u"h:mm ap"_s, u"HH:mm:ss"_s };
    return { u"d MMMM yyyy"_s, u"MMMM yyyy"_s, u"yyyy"_s, u"yyyy-MM-dd"_s, u"dddd"_s };
}

}  // namespace

TokenPopover::TokenPopover(const Token& token, QWidget* opener)
    : Popover(opener)
    , m_token(token)
    , m_content(new QWidget(this))
    , m_grid(new QGridLayout(m_content))
{
    const TokenSpec* spec = token.spec();
    const QString label = spec ? Texts::shown(spec->label) : token.name;
    //: %1: name of a token. Default: what stands there where a photo has no such value; form: how a date is written.
    setAccessibleName(Texts::tr("Default and form of %1").arg(label));
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setColumnStretch(1, 1);
    m_grid->addWidget(new ThemedLabel(label, TextRole::text, 13, QFont::DemiBold), 0, 0, 1, 2);
    onRestyle(m_content, [this] {
        m_grid->setHorizontalSpacing(px(10));
        m_grid->setVerticalSpacing(px(8));
    });
    const TokenKind kind = spec ? spec->kind : TokenKind::text;
    if (kind == TokenKind::date || kind == TokenKind::time)
        addDateForm();
    else if (kind == TokenKind::counter)
        addCounterForm();
    else
        addCaseForm();
    if (kind == TokenKind::counter)
        return;
    QBTextField* otherwise =
        //: What stands in the place of a value that a photo does not have, and what happens when nothing is given.
        addField(Texts::tr("If missing"), token.otherwise.value_or(QString()), Texts::tr("leave a gap"));
    connect(otherwise, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_token.otherwise = text.isEmpty() ? std::nullopt : std::optional(text);
        emit changed(m_token);
    });
}

void TokenPopover::addRow(const QString& title, QWidget* editor)
{
    const int row = m_grid->rowCount();
    auto* label = new ThemedLabel(title, TextRole::label, 12);
    label->setBuddy(editor);
    m_grid->addWidget(label, row, 0);
    m_grid->addWidget(editor, row, 1);
}

// Percent signs and bars end a form or a default in the text.
QBTextField* TokenPopover::addField(const QString& title, const QString& text, const QString& placeholder)
{
    auto* field = new QBTextField(m_content);
    field->setAccessibleName(title);
    field->setText(text);
    field->setPlaceholder(placeholder);
    field->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[^%]*"_s), field));
    addRow(title, field);
    m_fields.append(field);
    return field;
}

void TokenPopover::addDateForm()
{
    const bool isTime = m_token.spec()->kind == TokenKind::time;
    //: How a date or time is written.
    QBTextField* form = addField(Texts::tr("Form"), m_token.form, isTime ? u"HHmm"_s : u"yyyy-MM-dd"_s);
    form->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[^%|]*"_s), form));
    connect(form, &QLineEdit::textEdited, this, &TokenPopover::setForm);
    auto* usual = new QWidget(m_content);
    auto* flow = new FlowLayout(px(4), usual);
    for (const QString& text : usualForms(m_token.spec()->kind)) {
        auto* chip = new TokenChip(DateForm::apply(text, sample).value_or(text), usual);
        chip->setAccessibleDescription(text);
        chip->setToolTip(text);
        connect(chip, &QAbstractButton::clicked, form, [this, form, text] {
            form->setText(text);
            setForm(text);
        });
        flow->addWidget(chip);
    }
    m_example = new ThemedLabel({}, TextRole::label, 11);
    m_example->setVerbatim(true);
    m_grid->addWidget(m_example, m_grid->rowCount(), 1);
    m_grid->addWidget(usual, m_grid->rowCount(), 0, 1, 2);
    showExample();
}

void TokenPopover::addCounterForm()
{
    const CounterForm now = CounterForm::parse(m_token.form).value_or(CounterForm());
    constexpr int mostNumber = 99999999;
    const auto add = [this](const QString& title, qint64 number, int least, int most) {
        QBTextField* field = addField(title, QString::number(number), u"1"_s);
        field->setValidator(new QIntValidator(least, most, field));
        connect(field, &QLineEdit::textEdited, this, [this] {
            CounterForm form;
            form.start = m_fields.at(0)->text().isEmpty() ? 1 : m_fields.at(0)->text().toLongLong();
            form.step = m_fields.at(1)->text().isEmpty() ? 1 : m_fields.at(1)->text().toLongLong();
            form.digits = qBound(1, m_fields.at(2)->text().toInt(), CounterForm::mostDigits);
            setForm(form.text());
        });
    };
    //: Of a counter: its first number, how far it is from one to the next, and how many digits each has.
    add(Texts::tr("From"), now.start, 0, mostNumber);
    add(Texts::tr("Step"), now.step, 0, mostNumber);
    add(Texts::tr("Digits"), now.digits, 1, CounterForm::mostDigits);
}

void TokenPopover::addCaseForm()
{
    //: Whether the letters of a text are capitals.
    auto* picker = new ChoicePicker(Texts::tr("Letters"), 180, m_content);
    const QStringList forms{ {}, u"upper"_s, u"lower"_s };
    picker->setTitles({ Texts::tr("As they are"), Texts::tr("UPPER CASE"), Texts::tr("lower case") });
    picker->setCurrent(qMax(0, int(forms.indexOf(m_token.form.toLower()))));
    connect(picker, &ChoicePicker::picked, this, [this, forms](int i) { setForm(forms.at(i)); });
    addRow(Texts::tr("Letters"), picker);
}

void TokenPopover::setForm(const QString& form)
{
    m_token.form = form;
    showExample();
    emit changed(m_token);
}

void TokenPopover::showExample()
{
    if (!m_example)
        return;
    const bool isTime = m_token.spec()->kind == TokenKind::time;
    const QString form = m_token.form.trimmed().isEmpty() ? (isTime ? u"HHmm"_s : u"yyyy-MM-dd"_s) : m_token.form;
    //: %1: a date, written in the form that was chosen.
    m_example->setText(Texts::tr("as in “%1”").arg(DateForm::apply(form, sample).value_or(QString())));
}

int TokenPopover::heightIn(int width)
{
    const int inner = width - 2 * px(padding);
    m_content->setFixedWidth(inner);
    const int wanted = m_grid->hasHeightForWidth() ? m_grid->totalHeightForWidth(inner) : m_grid->sizeHint().height();
    return wanted + 2 * px(padding);
}

void TokenPopover::arrange(const QRect& box)
{
    m_content->setGeometry(box.adjusted(px(padding), px(padding), -px(padding), -px(padding)));
}

void TokenPopover::showEvent(QShowEvent* event)
{
    Popover::showEvent(event);
    if (m_fields.isEmpty())
        return;
    m_fields.constLast()->setFocus(Qt::PopupFocusReason);
    m_fields.constLast()->selectAll();
}

void TokenPopover::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        close();
    else
        Popover::keyPressEvent(event);
}

}  // namespace Quorbel
