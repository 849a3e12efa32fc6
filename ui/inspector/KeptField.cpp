#include "ui/inspector/KeptField.h"

#include "app/model/AppModel.h"
#include "core/schema/FieldLanguages.h"
#include "ui/controls/keywords/KeywordEditor.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/InspectorForm.h"
#include "ui/inspector/InspectorStates.h"
#include "ui/sheets/Sheet.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>

namespace Quorbel {

namespace {

// Menus and sheets have the keyboard for a moment only, and so does whatever covers the form.
bool isPassing(const QWidget& widget, const QWidget& form)
{
    if (qobject_cast<const QMenu*>(&widget) || qobject_cast<const QMenuBar*>(&widget)
        || widget.window() != form.window())
        return true;
    for (const QWidget* around = &widget; around; around = around->parentWidget())
        if (qobject_cast<const SheetHost*>(around) || around->property(KeptField::coverProperty).toBool())
            return true;
    return false;
}

}  // namespace

KeptField::KeptField(AppModel& model, InspectorForm& form)
    : QObject(&form)
    , m_model(model)
    , m_form(form)
{
    connect(
        qApp, &QApplication::focusChanged, this, [this](const QWidget* old, const QWidget* now) { follow(old, now); });
}

void KeptField::follow(const QWidget* old, const QWidget* now)
{
    // The field itself went, before the next photo's are all there: that moved the keyboard, not the user.
    if (m_wanted && old && !old->isVisible())
        return;
    // The form itself has it while it waits for a photo to be read.
    if (!now || now == &m_form || isPassing(*now, m_form))
        return;
    m_current = m_form.isAncestorOf(now) ? m_form.keyOf(now) : QString();
    if (m_wanted && m_wanted->key != m_current)
        m_wanted.reset();
}

void KeptField::keep()
{
    m_wanted.reset();
    if (!m_current.isEmpty())
        m_wanted = { m_current, m_model.primary() };
}

void KeptField::commit()
{
    const FieldRow* row = m_form.row(m_current);
    if (auto* keywords = row ? row->findChild<KeywordEditor*>() : nullptr)
        keywords->commit();
}

void KeptField::arrive()
{
    if (!m_wanted || m_wanted->from == m_model.primary() || InspectorStates::isUnread(m_model)
        || m_form.isAwaited(m_wanted->key))
        return;
    const QString key = std::exchange(m_wanted, std::nullopt)->key;
    if (m_form.row(key))
        return land(key);
    // Later: the model still tells of the photo.
    QMetaObject::invokeMethod(
        this,
        [this, key, photo = m_model.primary()] {
            if (m_model.primary() != photo || m_current != key)
                return;
            offer(key);
            land(key);
        },
        Qt::QueuedConnection);
}

// Puts the field on screen. Nothing is edited by that.
void KeptField::offer(const QString& key)
{
    if (const auto language = FieldLanguages::languageIn(key))
        m_model.addLanguage(language->field->id, language->code);
    else
        m_model.addKnownField(key);
}

void KeptField::land(const QString& key)
{
    if (const FieldRow* row = m_form.row(key)) {
        row->input()->setFocus(Qt::OtherFocusReason);
        select(*row);
    } else {
        // No key is to reach another field in its place.
        m_form.setFocus(Qt::OtherFocusReason);
    }
    m_current = key;
}

// From its end: what is seen of a long text is its beginning.
void KeptField::select(const FieldRow& row)
{
    if (auto* line = qobject_cast<QLineEdit*>(row.input())) {
        line->setSelection(int(line->text().size()), -int(line->text().size()));
    } else if (auto* area = qobject_cast<QPlainTextEdit*>(row.input())) {
        QTextCursor all = area->textCursor();
        all.movePosition(QTextCursor::End);
        all.movePosition(QTextCursor::Start, QTextCursor::KeepAnchor);
        area->setTextCursor(all);
    }
}

}  // namespace Quorbel
