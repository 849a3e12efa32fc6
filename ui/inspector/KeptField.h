// Which field of the form has the keyboard, and how it keeps it from one photo to the next.
// Thread: the main thread. Shows the model and calls it; who goes to another photo, and when, is decided elsewhere.
#pragma once

#include <QObject>
#include <QUrl>

#include <optional>

namespace Quorbel {

class AppModel;
class FieldRow;
class InspectorForm;

class KeptField final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KeptField)

public:
    /// A dynamic property of widgets that cover the form for a moment: the keyboard is with them, not elsewhere.
    static constexpr auto coverProperty = "coversTheForm";

    /// The form owns it.
    KeptField(AppModel& model, InspectorForm& form);
    /// Key of the field that has the keyboard (InspectorForm::row()), or had it when a menu, a sheet or something laid
    /// over the window took it; "" where that was elsewhere.
    const QString& current() const { return m_current; }
    /// The next photo that is selected gets the keyboard into this field, and its text is selected there. A field that
    /// it does not show is put on screen, empty; a custom one waits for a photo that has it.
    void keep();
    /// A keyword that is half typed there is one of the photo's from now on.
    void commit();
    /// The form shows the fields of what is selected now.
    void arrive();

private:
    void follow(const QWidget* old, const QWidget* now);
    void land(const QString& key);
    static void select(const FieldRow& row);
    void offer(const QString& key);

    AppModel& m_model;
    InspectorForm& m_form;
    QString m_current;
    struct Wanted {
        QString key{};
        std::optional<QUrl> from{};  ///< the photo that is left
    };
    std::optional<Wanted> m_wanted;
};

}  // namespace Quorbel
