// The rows of the inspector's form, each made when it is needed and kept from then on: which editor it gets, and what
// of the model an edit in it calls. Thread: the main thread. Knows no section: where a row stands, and what it shows,
// the form says.
#pragma once

#include <QHash>
#include <QObject>

#include <functional>

class QWidget;

namespace Quorbel {

class AppModel;
class FieldRow;
class FormLanguages;
class PlaceProvider;
struct CustomValue;
struct FieldRowParts;
struct FieldSpec;

class FormRows final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormRows)

public:
    /// What the form is asked for.
    struct Reach {
        PlaceProvider* places = nullptr;  ///< may be null
        FormLanguages* languages = nullptr;
        std::function<bool(const QString& key)> takes;  ///< whether something may be typed under this key now
    };
    /// Rows are children of `form` until a section takes them.
    FormRows(AppModel& model, Reach reach, QWidget* form);

    FieldRow* of(const FieldSpec& field);
    /// Of its text in a further language.
    FieldRow* of(const FieldSpec& field, const QString& code);
    FieldRow* of(const CustomValue& custom);
    /// By the field's id, or the key of a custom field or of a language; null for one that was not made yet.
    FieldRow* find(const QString& key) const { return m_pool.value(key); }
    /// The key of the row that this is, or is a part of; "" where there is none.
    QString keyOf(const QWidget* widget) const;

signals:
    /// A row was made, or has other tab stops than it had.
    void tabStopsChanged();
    /// The same, and the form has not been asked to be shown again.
    void tabStopsChangedLate();

private:
    FieldRow* make(const QString& key, FieldRowParts parts);
    FieldRow* makeOf(const FieldSpec& field);
    void connectRow(FieldRow& row, const FieldSpec& field);
    void write(const QString& id, const QString& text);
    void changeList(const QString& id, const QString& item, bool add);
    void toggle(const FieldSpec& field);

    AppModel& m_model;
    Reach m_reach;
    QWidget* m_form;
    QHash<QString, FieldRow*> m_pool;
};

}  // namespace Quorbel
