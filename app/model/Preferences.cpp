#include "app/model/Preferences.h"

#include "app/model/MainThread.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

void read(const QVariant& stored, QString& value)
{
    if (stored.typeId() == QMetaType::QString)
        value = stored.toString();
}

// An INI file holds a number as a text.
void read(const QVariant& stored, int& value)
{
    bool isNumber = false;
    if (const int number = stored.toInt(&isNumber); isNumber)
        value = number;
}

// An INI file holds a Boolean as a text.
void read(const QVariant& stored, bool& value)
{
    if (stored.typeId() == QMetaType::Bool)
        value = stored.toBool();
    QString text;
    read(stored, text);
    if (text == u"true"_s || text == u"false"_s)
        value = text == u"true"_s;
}

// An INI file gives a list of one back as a plain text: only a path counts as such.
void read(const QVariant& stored, QStringList& paths)
{
    if (stored.typeId() == QMetaType::QStringList)
        paths = stored.toStringList();
    else if (stored.typeId() == QMetaType::QString && stored.toString().startsWith(u'/'))
        paths = QStringList{ stored.toString() };
}

void read(const QVariant& stored, RecordSortOrder& order)
{
    QString text;
    read(stored, text);
    order = fromRawValue<RecordSortOrder>(text).value_or(order);
}

void read(const QVariant& stored, SidecarNaming& naming)
{
    QString text;
    read(stored, text);
    naming = fromRawValue<SidecarNaming>(text).value_or(naming);
}

void read(const QVariant& stored, std::optional<ColorScheme>& scheme)
{
    QString text;
    read(stored, text);
    if (text == u"dark"_s)
        scheme = ColorScheme::dark;
    else if (text == u"light"_s)
        scheme = ColorScheme::light;
    else if (text == u"contrast"_s)
        scheme = ColorScheme::highContrast;
}

template <typename T>
QVariant stored(const T& value)
{
    return value;
}

QVariant stored(RecordSortOrder order)
{
    return rawValue(order);
}

QVariant stored(SidecarNaming naming)
{
    return rawValue(naming);
}

// Invalid where there is nothing to store.
QVariant stored(const std::optional<ColorScheme>& scheme)
{
    if (!scheme)
        return {};
    switch (*scheme) {
    case ColorScheme::light:
        return u"light"_s;
    case ColorScheme::dark:
        return u"dark"_s;
    case ColorScheme::highContrast:
        return u"contrast"_s;
    }
    return {};
}

}  // namespace

template <typename T>
Setting<T>::Setting(Preferences& owner, const char* key, const T& whenAbsent)
    : m_owner(owner)
    , m_key(QString::fromLatin1(key))
    , m_value(whenAbsent)
{
    read(owner.store().value(m_key), m_value);
}

template <typename T>
void Setting<T>::set(const T& value)
{
    requireMainThread(qUtf8Printable(m_key));
    if (m_value == value)
        return;
    m_value = value;
    materialize();
    emit m_owner.changed();
}

template <typename T>
void Setting<T>::materialize()
{
    const QVariant value = stored(m_value);
    if (!value.isValid())
        m_owner.store().remove(m_key);
    else if (m_owner.store().value(m_key) != value)
        m_owner.store().setValue(m_key, value);
}

template class Setting<bool>;
template class Setting<int>;
template class Setting<QString>;
template class Setting<QStringList>;
template class Setting<RecordSortOrder>;
template class Setting<SidecarNaming>;
template class Setting<std::optional<ColorScheme>>;

Preferences::Preferences(std::shared_ptr<QSettings> store)
    : m_store(std::move(store))
{
    // So that these defaults become values that a person finds in the file.
    renamePattern.materialize();
    sortOrder.materialize();
}

}  // namespace Quorbel
