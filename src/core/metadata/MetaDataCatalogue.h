#pragma once

#include "core/metadata/MetaDataField.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <optional>

namespace tavrin {

struct IptcContext;

// The tokens whose values the photo action computes itself.
namespace phototoken {
inline constexpr char Filename[] = "<FILEINFO_Filename>";
inline constexpr char NumberSequence[] = "<SEQUENCES_Number_Sequence>";
inline constexpr char Date[] = "<EXIF_Date>";
inline constexpr char Time[] = "<EXIF_Time>";
inline constexpr char DeviceMake[] = "<EXIF_Device_Make>";
inline constexpr char DeviceModel[] = "<EXIF_Device_Model>";
inline constexpr char Dimensions[] = "<EXIF_Dimensions>";
inline constexpr char Comments[] = "<EXIF_Comments>";
}  // namespace phototoken

// The groups tokens are named after: "<EXIF_Date>" is of the EXIF group.
namespace photogroup {
inline constexpr char FileInfo[] = "FILEINFO";
inline constexpr char Sequences[] = "SEQUENCES";
inline constexpr char Exif[] = "EXIF";
inline constexpr char Iptc[] = "IPTC";
}  // namespace photogroup

// Whether the text holds a token of the group ("EXIF_" in any case).
bool containsGroupToken(const QString& text, const char* group);

// A group of the catalogue: its display name and its fields in order.
struct MetaDataCategory {
    QString name;
    QList<MetaDataField> fields;
};

// The fixed catalogue of photo metadata fields, nine categories of 43 fields, and the
// values resolved into it for the image being renamed. One catalogue serves one image at a
// time: each run of the photo action keeps its own.
class MetaDataCatalogue {
public:
    // Builds the catalogue when it is empty; a second call keeps it, values and all.
    void InitializeMetaDataList();

    const QList<MetaDataCategory>& metaDataList() const { return m_categories; }

    // The value of the field with exactly this token: the last match in the first
    // category that has one; "" when no field has it.
    QString getTagValue(const QString& tagCode) const;

    // The catalogue's field with this token, or nothing.
    std::optional<MetaDataField> fieldForTag(const QString& tagCode) const;

    // The fields of the tokens, in order; a token the catalogue lacks (from a newer
    // version's profile) stands as a field of its own token only.
    QList<MetaDataField> fieldsForTags(const QStringList& tagCodes) const;

    // Resolves every IPTC field's value for one image (all "" without a dictionary) and,
    // when a mask is given, replaces the tokens of those fields in it by their values, with
    // each ":" of a value replaced by `colonReplace` when that is not empty.
    void resetMetaDataList(const QVariantMap* iptc, QString* mask, const IptcContext& context,
                           const QString& colonReplace);

private:
    QList<MetaDataCategory> m_categories;
};

}  // namespace tavrin
