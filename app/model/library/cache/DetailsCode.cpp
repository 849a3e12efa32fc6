#include "app/model/library/cache/DetailsCode.h"

#include "app/model/library/cache/Packing.h"
#include "core/schema/FieldSchema.h"
#include "core/schema/KeywordPath.h"

#include <QCryptographicHash>

namespace Quorbel::DetailsCode {

using namespace Qt::StringLiterals;

namespace {

constexpr quint64 shown = 1;
constexpr quint64 foreign = 2;
constexpr quint64 several = 4;

void packTexts(Packer& to, const QStringList& texts)
{
    to.number(quint64(texts.size()));
    for (const QString& text : texts)
        to.text(text);
}

QStringList unpackTexts(Unpacker& from)
{
    QStringList texts;
    for (qsizetype left = from.count(); left > 0; --left)
        texts.append(from.text());
    return texts;
}

FieldHome unpackHome(Unpacker& from)
{
    FieldHome home{ .tag = from.text() };
    home.values = unpackTexts(from);
    const quint64 flags = from.number();
    home.isShown = (flags & shown) != 0;
    home.isForeign = (flags & foreign) != 0;
    home.isSeveral = (flags & several) != 0;
    return home;
}

}  // namespace

QByteArray encoded(const PhotoDetails& details)
{
    Packer to;
    to.number(quint64(details.texts.size()));
    for (auto text = details.texts.cbegin(); text != details.texts.cend(); ++text) {
        to.text(text.key());
        to.text(*text);
    }
    to.number(quint64(details.lists.size()));
    for (auto list = details.lists.cbegin(); list != details.lists.cend(); ++list) {
        to.text(list.key());
        packTexts(to, *list);
    }
    packTexts(to, details.paths);
    to.number(quint64(details.disagreements.size()));
    for (auto homes = details.disagreements.cbegin(); homes != details.disagreements.cend(); ++homes) {
        to.text(homes.key());
        to.number(quint64(homes->size()));
        for (const FieldHome& home : *homes) {
            to.text(home.tag);
            packTexts(to, home.values);
            to.number((home.isShown ? shown : 0) | (home.isForeign ? foreign : 0) | (home.isSeveral ? several : 0));
        }
    }
    to.number(details.hasCredentials ? 1 : 0);
    return to.bytes();
}

std::optional<PhotoDetails> decoded(QByteArrayView bytes)
{
    Unpacker from(bytes);
    PhotoDetails details;
    for (qsizetype left = from.count(); left > 0; --left) {
        const QString key = from.text();
        details.texts.insert(key, from.text());
    }
    for (qsizetype left = from.count(); left > 0; --left) {
        const QString id = from.text();
        details.lists.insert(id, unpackTexts(from));
    }
    details.paths = unpackTexts(from);
    for (qsizetype left = from.count(); left > 0; --left) {
        QList<FieldHome>& homes = details.disagreements[from.text()];
        for (qsizetype more = from.count(); more > 0; --more)
            homes.append(unpackHome(from));
    }
    details.hasCredentials = from.number() != 0;
    return from.isGood() ? std::optional(std::move(details)) : std::nullopt;
}

QByteArray fingerprint()
{
    QStringList parts{ QString::number(version), KeywordPath::treeTag() };
    for (const FieldSpec& field : FieldSchema::everyField())
        parts += QStringList{ field.id, field.languageTag() } + field.writeTags;
    for (const KeywordPath::Home& home : KeywordPath::homes())
        parts += { home.tag, home.separator };
    return QCryptographicHash::hash(parts.join(u'\n').toUtf8(), QCryptographicHash::Sha1);
}

}  // namespace Quorbel::DetailsCode
