#include "ui/inspector/InspectorView.h"

#include "app/model/AppModel.h"
#include "app/model/library/filter/Filtering.h"
#include "app/model/words/QuickKeywords.h"
#include "core/language/Texts.h"
#include "ui/controls/Labels.h"
#include "ui/controls/scrolling/ScrollArea.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/InspectorFooter.h"
#include "ui/inspector/InspectorForm.h"
#include "ui/inspector/KeptField.h"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal aroundFocus = 48;
constexpr qreal aroundRing = 8;

constexpr int releaseInterval = 50;  // milliseconds between looks whether the mouse was let go

}  // namespace

InspectorView::InspectorView(
    AppModel& model, ThumbnailStore* thumbs, PlaceProvider* places, MapRenderer* maps, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_scroll(new ScrollArea)
    , m_form(new InspectorForm(model, thumbs, places, maps))
    , m_kept(new KeptField(model, *m_form))
    , m_nothing(new ThemedLabel(Texts::tr("No photo selected"), TextRole::muted, 13))
    , m_footer(new InspectorFooter(model))
{
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setContent(m_form);
    m_form->installEventFilter(this);
    m_scroll->viewport()->installEventFilter(this);
    m_form->setTabStopsBehind(m_footer->tabStops());
    m_nothing->setAlignment(Qt::AlignCenter);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_scroll, 1);
    column->addWidget(m_nothing, 1);
    column->addWidget(m_footer);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now && m_form->isAncestorOf(now))
            revealFocus(true);
    });
    // Later: the sheet in which the field was picked still gives the focus back to where it was.
    connect(m_form, &InspectorForm::fieldAdded, this, &InspectorView::focusField, Qt::QueuedConnection);
    connectModel();
    connectGaps();
    refresh();
}

// Later, too: whoever leads to a field may still be giving the focus back.
void InspectorView::connectGaps()
{
    Filtering& filtering = m_model.filtering();
    connect(
        &filtering, &Filtering::fieldAsked, this,
        [this](const QString& id) {
            // The chosen field set may leave it out.
            const FieldSpec* field = FieldSchema::spec(id);
            if (field && !m_model.visibleFieldIDs(field->section).contains(id))
                m_model.addKnownField(id);
            focusField(id);
        },
        Qt::QueuedConnection);
    filtering.focusedField = [view = QPointer(this)] {
        const QWidget* focus = view ? view->window()->focusWidget() : nullptr;
        return focus ? view->m_form->keyOf(focus) : QString();
    };
}

void InspectorView::connectModel()
{
    for (const auto changed :
        { &AppModel::selectionChanged, &AppModel::primaryChanged, &AppModel::recordsChanged, &AppModel::isSavingChanged,
            &AppModel::leftEditsChanged, &AppModel::unreadSelectedChanged, &AppModel::isWorkingChanged })
        connect(&m_model, changed, this, &InspectorView::refresh);
    for (const auto changed :
        { &AppModel::editsChanged, &AppModel::detailsChanged, &AppModel::selectedKeywordsChanged })
        connect(&m_model, changed, this, &InspectorView::refreshInPlace);
    connect(&m_model.quickKeywords(), &QuickKeywords::changed, this, &InspectorView::refreshInPlace);
    connect(&m_model.preferences(), &Preferences::changed, this, &InspectorView::refresh);
}

void InspectorView::setBottomInset(int pixels)
{
    m_form->setBottomInset(pixels);
    m_scroll->setCovered(pixels);
}

void InspectorView::refresh()
{
    const bool hasPhoto = !m_model.selection().isEmpty() && (m_model.isBatch() || m_model.primaryRecord());
    m_scroll->setVisible(hasPhoto);
    m_nothing->setVisible(!hasPhoto);
    if (hasPhoto)
        m_form->refresh();
    else
        m_form->leave();
    m_footer->refresh(hasPhoto);
    if (hasPhoto)
        m_kept->arrive();
}

// What is found out late adds lines and rows, perhaps above where one types: that stays where it is.
void InspectorView::refreshInPlace()
{
    const QPointer<QWidget> focus = QApplication::focusWidget();
    const auto heightOf = [this](const QWidget* widget) { return widget->mapTo(this, QPoint()).y(); };
    if (!focus || !m_form->isAncestorOf(focus))
        return refresh();
    const int before = heightOf(focus);
    refresh();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    if (!focus || !focus->hasFocus())
        return;
    QScrollBar* bar = m_scroll->verticalScrollBar();
    bar->setValue(bar->value() + heightOf(focus) - before);
}

// `isNew`: it has just got there.
void InspectorView::revealFocus(bool isNew)
{
    QWidget* focus = QApplication::focusWidget();
    if (!focus || !m_form->isAncestorOf(focus))
        return;
    // What is pressed must not move away under the pointer, or it is not clicked.
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
        QTimer::singleShot(releaseInterval, focus, [this, focus] {
            if (focus == QApplication::focusWidget())
                revealFocus(false);
        });
        return;
    }
    // Where one types, in what is higher than the window perhaps; and around it enough for a field, its ring and the
    // line under it. What is no text and stands there already keeps its place.
    const bool types = focus->testAttribute(Qt::WA_InputMethodEnabled);
    QRect wanted = types ? focus->inputMethodQuery(Qt::ImCursorRectangle).toRect() : focus->rect();
    wanted.moveTopLeft(focus->mapTo(m_form, wanted.topLeft()));
    m_scroll->reveal(wanted, px(types || isNew ? aroundFocus : aroundRing));
}

void InspectorView::focusField(const QString& id)
{
    if (const FieldRow* row = m_form->reveal(id))
        row->input()->setFocus(Qt::OtherFocusReason);
}

bool InspectorView::eventFilter(QObject* watched, QEvent* event)
{
    // A text area that grew while one types may have pushed its own last line out of sight; so may a window that became
    // lower, and a notice that now lies over the form.
    if (event->type() == QEvent::Resize)
        QMetaObject::invokeMethod(
            this, [this] { revealFocus(false); }, Qt::QueuedConnection);
    return QWidget::eventFilter(watched, event);
}

void InspectorView::paintEvent(QPaintEvent*)
{
    DirectedPainter painter(this);
    painter.fillRect(rect(), Theme::of(this).panel);
}

}  // namespace Quorbel
