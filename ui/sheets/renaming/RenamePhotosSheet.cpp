#include "ui/sheets/renaming/RenamePhotosSheet.h"

#include "app/model/AppModel.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "core/language/Texts.h"
#include "core/text/FileNaming.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/sheets/SheetParts.h"
#include "ui/sheets/TokenFlow.h"
#include "ui/sheets/renaming/NumberField.h"
#include "ui/sheets/renaming/RenameList.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLocale>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal manyWidth = 640;
constexpr qreal labelGap = 7;
constexpr qreal fieldGap = 16;
constexpr qreal partsGap = 6;
constexpr qreal footAbove = 22;
constexpr int mostStart = 999'999'999;
constexpr int mostStep = 99'999;

// One at the left and one at the right; in a narrow sheet, the second below the first. The room is kept for both while
// one is hidden.
class TwoParts final : public QWidget {
public:
    TwoParts(QWidget* first, QWidget* second)
        : m_first(first)
        , m_second(second)
    {
        first->setParent(this);
        second->setParent(this);
    }

    void arrange()
    {
        const QSize first = m_first->sizeHint();
        const QSize second = m_second->sizeHint();
        const bool isOneLine = first.width() + px(fieldGap) + second.width() <= width();
        const int below = first.height() + px(partsGap);
        setFixedHeight(isOneLine ? first.height() : below + second.height());
        m_first->setGeometry(mirrored(QRect(0, 0, qMin(width(), first.width()), first.height()), this));
        if (isOneLine)
            m_second->setGeometry(mirrored(QRect(width() - second.width(), 0, second.width(), first.height()), this));
        else
            m_second->setGeometry(mirrored(QRect(0, below, qMin(width(), second.width()), second.height()), this));
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            arrange();
        return QWidget::event(event);
    }
    void resizeEvent(QResizeEvent* event) override
    {
        QWidget::resizeEvent(event);
        arrange();
    }

private:
    QWidget* m_first;
    QWidget* m_second;
};

QString counted(qsizetype count)
{
    return QLocale().toString(count);
}

}  // namespace

RenamePhotosSheet::RenamePhotosSheet(AppModel& model, QWidget* parent)
    : SheetBody(parent)
    , m_renaming(model.renaming())
    , m_pattern(new QBTextField)
    , m_counter(new QWidget)
    , m_start(new NumberField(Texts::tr("Counter from"), 0, mostStart))
    , m_step(new NumberField(Texts::tr("Step"), 1, mostStep))
    , m_digits(new NumberField(Texts::tr("Digits"), 1, CounterForm::mostDigits))
    , m_marked(new ThemedLabel({}, TextRole::amberText, 11.5))
    , m_next(new QBTextButton(Texts::tr("Next", "goes to the next name")))
    , m_list(new RenameList)
    , m_foot(new WrappedLine(TextRole::label, 11, 15))
    , m_cancel(new QBButton(Texts::tr("Cancel"), QBButtonKind::secondary))
    , m_rename(new QBButton(Texts::tr("Rename"), QBButtonKind::primary))
{
    m_pattern->setMono(true);
    m_pattern->setPlaceholder(u"%Date%_%Title%_%Counter%"_s);
    m_pattern->setAccessibleName(Texts::tr("Pattern"));
    auto* column = new QVBoxLayout(this);
    stackParts(this, column,
        { { m_pattern, 12 }, { buildTokens(), 12 }, { buildCounter(), 22 }, { buildHeading(), 8 },
            { m_list, footAbove }, { buildFoot() } });
    frameSheet(this, column, manyWidth);
    connectModel();
    refresh();
}

QWidget* RenamePhotosSheet::buildTokens()
{
    auto* flow = new TokenFlow;
    QList<FileNaming::Token> tokens = FileNaming::tokens();
    tokens.append({ Texts::mark("Counter"), u"%Counter%"_s });
    for (const FileNaming::Token& token : std::as_const(tokens))
        flow->add(Texts::shown(token.label), token.placeholder,
            [this, placeholder = token.placeholder] { insertToken(placeholder); });
    return flow;
}

// The line stays where it is without a counter: nothing below it moves while one types.
QWidget* RenamePhotosSheet::buildCounter()
{
    auto* counter = new QHBoxLayout(m_counter);
    QList<QSpacerItem*> gaps;
    const auto add = [&](const QString& label, NumberField* field) {
        auto* text = new ThemedLabel(label, TextRole::label, 13);
        text->setBuddy(field);
        counter->addWidget(text);
        counter->addWidget(field);
        gaps.append(new QSpacerItem(0, 0));
        counter->addItem(gaps.constLast());
    };
    add(Texts::tr("Counter from"), m_start);
    //: Behind “Counter from”: by how much it rises from photo to photo.
    add(Texts::tr("step"), m_step);
    //: Behind “Counter from”: how many digits it has.
    add(Texts::tr("digits"), m_digits);
    auto* line = new TwoParts(m_counter, new ThemedLabel(Texts::tr("The extension is kept."), TextRole::label, 11));
    onRestyle(this, [=, this] {
        counter->setContentsMargins(0, 0, 0, 0);
        counter->setSpacing(px(labelGap));
        for (QSpacerItem* gap : gaps)
            gap->changeSize(px(fieldGap) - 2 * px(labelGap), 0);
        line->arrange();
    });
    return line;
}

QWidget* RenamePhotosSheet::buildHeading()
{
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->addWidget(new LabeledDivider(Texts::tr("Preview", "noun")), 1);
    row->addWidget(m_marked);
    row->addWidget(m_next);
    m_next->setAccessibleDescription(Texts::tr("Goes to the next name to look at"));
    onRestyle(this, [=, this] {
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(px(8));
        line->setFixedHeight(m_next->sizeHint().height());
    });
    return line;
}

QWidget* RenamePhotosSheet::buildFoot()
{
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->addWidget(m_foot, 1);
    row->addWidget(m_cancel);
    row->addWidget(m_rename);
    onRestyle(this, [row] {
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(px(8));
    });
    return line;
}

void RenamePhotosSheet::connectModel()
{
    connect(
        m_pattern, &QLineEdit::textEdited, &m_renaming, [this](const QString& text) { m_renaming.pattern.set(text); });
    connect(
        m_start, &NumberField::numberEdited, &m_renaming, [this](int number) { m_renaming.counterStart.set(number); });
    connect(
        m_step, &NumberField::numberEdited, &m_renaming, [this](int number) { m_renaming.counterStep.set(number); });
    connect(m_digits, &NumberField::numberEdited, &m_renaming,
        [this](int number) { m_renaming.counterDigits.set(number); });
    connect(m_next, &QAbstractButton::clicked, m_list, &RenameList::goToNextMarked);
    connect(m_cancel, &QAbstractButton::clicked, this, &RenamePhotosSheet::cancel);
    connect(m_rename, &QAbstractButton::clicked, this, &RenamePhotosSheet::confirm);
    connect(&m_renaming, &PhotosRenaming::planChanged, this, &RenamePhotosSheet::refresh);
    connect(&m_renaming, &PhotosRenaming::progressChanged, this, &RenamePhotosSheet::refresh);
}

// Where the caret is; behind a text or a number with a "_" between.
void RenamePhotosSheet::insertToken(const QString& token)
{
    const QString before = m_pattern->text().left(
        m_pattern->selectionStart() >= 0 ? m_pattern->selectionStart() : m_pattern->cursorPosition());
    const bool needsNoSeparator = before.isEmpty() || before.endsWith(u'_') || before.endsWith(u'%');
    m_pattern->insert(needsNoSeparator ? token : u'_' + token);
    m_renaming.pattern.set(m_pattern->text());
}

void RenamePhotosSheet::refresh()
{
    m_pattern->setBoundText(m_renaming.pattern());
    m_counter->setVisible(m_renaming.hasCounter());
    m_start->setNumber(m_renaming.counterStart());
    m_step->setNumber(m_renaming.counterStep());
    m_digits->setNumber(m_renaming.counterDigits());
    const auto& plan = m_renaming.plan();
    m_list->setPlan(plan);
    const qsizetype marked = plan ? plan->marked : 0;
    m_marked->setVisible(marked > 0);
    //: %1 is a number of names.
    m_marked->setText(Texts::tr("%1 to look at", nullptr, marked).arg(counted(marked)));
    m_next->setVisible(marked > 0);
    const bool isRunning = m_renaming.isRunning();
    for (QWidget* input : { static_cast<QWidget*>(m_pattern), static_cast<QWidget*>(m_counter) })
        input->setEnabled(!isRunning);
    //: %1 is a number of photos.
    const QString title = Texts::tr("Rename %1", nullptr, m_renaming.photos()).arg(counted(m_renaming.photos()));
    if (m_rename->text() != title)
        m_rename->setText(title);
    m_rename->setEnabled(m_renaming.canRename() && !m_renaming.isWaiting());
    refreshFoot();
}

void RenamePhotosSheet::refreshFoot()
{
    QString text = Texts::tr("Sidecars and backups go along. Edit ▸ Undo Rename takes it back.");
    if (m_renaming.isRunning())
        //: %1 of all %2 photos are renamed.
        text = Texts::tr("Renaming %1 of %2…", nullptr, m_renaming.total())
                   .arg(counted(m_renaming.done()), counted(m_renaming.total()));
    else if (m_renaming.isWaiting())
        text = Texts::tr("Renames them as soon as the save has ended…");
    else if (m_renaming.unread() > 0)
        //: %1 is a number of photos.
        text = Texts::tr("Reading %1 more…", nullptr, m_renaming.unread()).arg(counted(m_renaming.unread()));
    m_foot->setText(text);
}

QString RenamePhotosSheet::title() const
{
    return Texts::tr("Rename %1 Files", nullptr, m_renaming.photos()).arg(counted(m_renaming.photos()));
}

void RenamePhotosSheet::confirm()
{
    if (m_rename->isEnabled())
        m_renaming.rename();
}

void RenamePhotosSheet::cancel()
{
    if (m_renaming.isRunning())
        m_renaming.cancel();
    else
        m_renaming.close();
}

QWidget* RenamePhotosSheet::initialFocus()
{
    return m_pattern;
}

}  // namespace Quorbel
