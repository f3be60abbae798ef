#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>

// The conversions that turn raw IPTC and XMP values into readable text. "fileText" is the
// image file's bytes read as text: the XMP packet inside it is searched as text, the way
// the original program did, so the same files give the same values.
namespace tavrin {

// The metadata codes that are never keys of the IPTC dictionary, or that are converted.
namespace iptccodes {
inline constexpr char CopyrightStatus[] = "CopyrightStatus";
inline constexpr char CopyrightInfoURL[] = "CopyrightInfoURL";
inline constexpr char DateCreated[] = "Date_Created";
inline constexpr char TimeCreated[] = "TimeCreated";
inline constexpr char Urgency[] = "Urgency";
inline constexpr char Scene[] = "Scene";
inline constexpr char SubjectReference[] = "SubjectReference";
}  // namespace iptccodes

// "None", "High", "Normal + 3" ... "Low" for 0 to 8 (a text that is no number counts as 0);
// any other number gives the text unchanged.
QString getUrgency(const QString& urgency);

// "Copyrighted" when the XMP Marked element holds "true" (any case, blanks around it),
// "Public Domain" for anything else in it, "Unknown" without the element.
QString getCopyrightStatus(const QString& fileText);

// The text of the XMP WebStatement element as it is; "" without it.
QString getCopyrightInfoURL(const QString& fileText);

// The codes joined with ",", each replaced by its name. At a code the list lacks the
// replacing stops, and the text so far is the result.
QString getScene(const QStringList& codes);

// As getScene for subject codes. A subject reference of the "IPTC:16009000:..." form,
// which is no key of the list itself, is replaced whole by the name of the 8-digit code
// inside it.
QString getSubjectCode(const QStringList& codes);

// The XMP creation date formatted with the pattern; the element's text as it is when it
// does not parse as a date; "" without the element.
QString getDateCreated(const QString& fileText, const QString& dateFormat);
QString getTimeCreated(const QString& fileText, const QString& timeFormat);

// The patterns and the file text the catalogue's IPTC values are resolved with.
struct IptcContext {
    QString fileText;
    QString dateFormat;
    QString timeFormat;
};

// The value of an IPTC field whose metadata code is `metadataCode` ("Keywords",
// "CreatorContactInfo@CiAdrCity", ...): a text as it is (urgency converted), a list joined
// with "," (scenes and subjects named), the entry of a nested dictionary, or a fall-back
// read from the XMP text when the dictionary lacks the key. "" without a dictionary.
QString resolveIptcValue(const QVariantMap* iptc, const QString& metadataCode, const IptcContext& context);

}  // namespace tavrin
