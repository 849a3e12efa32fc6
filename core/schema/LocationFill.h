// Turns a picked place into values of the place fields. Thread: any. Pure.
#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace Quorbel::LocationFill {

struct Result {
    QString name{};  ///< the place's own name
    QString locality{};  ///< town; may be empty
    QString administrativeArea{};  ///< state, province or region; may be empty
    QString country{};  ///< may be empty
    double latitude = 0;  ///< degrees
    double longitude = 0;  ///< degrees
    QString countryCode{};  ///< two letters of ISO 3166; may be empty
    bool operator==(const Result&) const = default;
};

struct Assignment {
    QString id{};  ///< field id
    QString value{};
    bool operator==(const Assignment&) const = default;
};

/// Position and town always; sub-location, state and country only where the field is empty.
QList<Assignment> assignments(const Result& result, const std::function<bool(const QString&)>& isFieldEmpty);

}  // namespace Quorbel::LocationFill
