#include "core/iptc/IptcDefinitions.h"

#include <algorithm>

namespace Quorbel::IptcDefinitions {

using namespace Qt::StringLiterals;

bool areNeeded(const QList<Assignment>& assignments)
{
    static const QStringList tags{ u"XMP-plus:DataMining"_s, u"XMP-iptcExt:AISystemUsed"_s,
        u"XMP-iptcExt:AISystemVersionUsed"_s, u"XMP-iptcExt:AIPromptInformation"_s,
        u"XMP-iptcExt:AIPromptWriterName"_s };
    static const QStringList members{ u"GPSAltitudeRef"_s, u"ProductId"_s };
    return std::any_of(assignments.cbegin(), assignments.cend(), [](const Assignment& assignment) {
        return tags.contains(assignment.tag, Qt::CaseInsensitive)
            || (assignment.value.startsWith(u'{')
                && std::any_of(members.cbegin(), members.cend(),
                    [&assignment](const QString& member) { return assignment.value.contains(member); }));
    });
}

// A data mining code is stored as an address; callers give and get the code, as with the other vocabularies of PLUS.
QString text()
{
    return uR"PERL(
$Image::ExifTool::UserDefined{'Image::ExifTool::PLUS::XMP'} = {
  DataMining => {
    ValueConv => sub { my $code = $_[0]; $code =~ s{^http://ns\.useplus\.org/ldf/vocab/}{}; $code },
    ValueConvInv => sub {
      my $code = $_[0];
      $code =~ s{^http://ns\.useplus\.org/ldf/vocab/}{};
      "http://ns.useplus.org/ldf/vocab/$code";
    },
  },
};
$Image::ExifTool::UserDefined{'Image::ExifTool::XMP::iptcExt'} = {
  AISystemUsed => { },
  AISystemVersionUsed => { },
  AIPromptInformation => { },
  AIPromptWriterName => { Groups => { 2 => 'Author' } },
};
{
  require Image::ExifTool::XMP;
  my $properties = Image::ExifTool::GetTagTable('Image::ExifTool::XMP::iptcExt');
  for my $place (qw(LocationCreated LocationShown)) {
    $$properties{$place}{Struct}{GPSAltitudeRef} ||= { Namespace => 'exif', Writable => 'integer' };
  }
  $$properties{ProductInImage}{Struct}{ProductId} = { List => 'Bag' };
}
1;)PERL"_s;
}

}  // namespace Quorbel::IptcDefinitions
