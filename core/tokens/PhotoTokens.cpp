#include "core/tokens/PhotoTokens.h"

#include "core/save/Edits.h"
#include "core/text/Text.h"
#include "core/tokens/DateForm.h"

#include <QFileInfo>
#include <QLocale>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Without a form as in renaming: the day, and the digits of the time. What is no date stays as it is.
QString dateText(const QString& held, bool isTime, const QString& form)
{
    const std::optional<PhotoDate> date = PhotoDate::parse(held);
    if (date && !form.isEmpty())
        return DateForm::apply(form, *date).value_or(QString());
    const QStringList parts = held.split(u' ', Qt::SkipEmptyParts);
    if (!form.isEmpty())
        return {};
    return isTime ? parts.value(1).remove(u':') : parts.value(0);
}

QString inCase(const QString& text, const QString& form)
{
    if (form.compare(u"upper"_s, Qt::CaseInsensitive) == 0)
        return text.toUpper();
    if (form.compare(u"lower"_s, Qt::CaseInsensitive) == 0)
        return text.toLower();
    return text;
}

QString cameraText(const QList<CameraRow>& rows, const QString& label)
{
    for (const CameraRow& row : rows)
        if (row.label == label)
            return row.value;
    return {};
}

}  // namespace

PhotoTokens PhotoTokens::of(const ImageRecord& photo)
{
    return { .fileName = photo.fileName, .values = photo.values, .lists = photo.lists, .camera = photo.camera };
}

PhotoTokens PhotoTokens::of(const ImageRecord& photo, const Edits& edits)
{
    PhotoTokens tokens = of(photo);
    ExternalRefresh::Drafts seen = edits.onto(photo);
    tokens.values = std::move(seen.values);
    tokens.lists = std::move(seen.lists);
    return tokens;
}

QString PhotoTokens::value(const TokenSpec& token, const QString& form) const
{
    switch (token.kind) {
    case TokenKind::counter:
        return CounterForm::parse(form).value_or(counter).number(position);
    case TokenKind::date:
        if (wholeDates && form.trimmed().isEmpty())
            return Text::trimmedWithNewlines(values.value(token.source));
        [[fallthrough]];
    case TokenKind::time:
        return dateText(values.value(token.source), token.kind == TokenKind::time, form.trimmed());
    case TokenKind::list:
        return inCase(lists.value(token.source).join(u", "_s), form);
    case TokenKind::camera:
        return inCase(cameraText(camera, token.source), form);
    case TokenKind::fileName:
        return inCase(fileName, form);
    case TokenKind::baseName:
        return inCase(QFileInfo(fileName).completeBaseName(), form);
    case TokenKind::text:
        break;
    }
    return inCase(Text::trimmedWithNewlines(values.value(token.source)), form);
}

}  // namespace Quorbel
