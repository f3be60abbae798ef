#include "gui/metadata/FieldTexts.h"

#include "core/text/LocalizedStrings.h"

namespace tavrin {

namespace {

struct FieldText {
    const char* catalogueText;
    const char* key;
};

const FieldText kFieldTexts[] = {
    { "File Details", "FIELDGROUPFILEDETAILS" },
    { "Numerical Sequences", "FIELDGROUPSEQUENCES" },
    { "IPTC - Description", "FIELDGROUPDESCRIPTION" },
    { "IPTC - Keywords", "FIELDGROUPKEYWORDS" },
    { "IPTC - Supplemental Categories", "FIELDGROUPSUPPLEMENTAL" },
    { "IPTC - Categories", "FIELDGROUPCATEGORIES" },
    { "IPTC - Contact", "FIELDGROUPCONTACT" },
    { "IPTC - Origin", "FIELDGROUPORIGIN" },
    { "IPTC - Image", "FIELDGROUPIMAGE" },
    { "Filename", "FIELDFILENAME" },
    { "Number Sequence", "FIELDNUMBERSEQUENCE" },
    { "Date", "FIELDDATE" },
    { "Time", "FIELDTIME" },
    { "Device Make", "FIELDDEVICEMAKE" },
    { "Device Model", "FIELDDEVICEMODEL" },
    { "Dimensions", "FIELDDIMENSIONS" },
    { "Comments", "FIELDCOMMENTS" },
    { "Document Title", "FIELDDOCUMENTTITLE" },
    { "Author", "FIELDAUTHOR" },
    { "Author Title", "FIELDAUTHORTITLE" },
    { "Description", "FIELDDESCRIPTION" },
    { "Description Writer", "FIELDDESCRIPTIONWRITER" },
    { "Copyright Status", "FIELDCOPYRIGHTSTATUS" },
    { "Copyright Notice", "FIELDCOPYRIGHTNOTICE" },
    { "Copyright Info URL", "FIELDCOPYRIGHTURL" },
    { "Urgency", "FIELDURGENCY" },
    { "Keywords", "FIELDKEYWORDS" },
    { "Categories", "FIELDCATEGORIES" },
    { "Address", "FIELDADDRESS" },
    { "City", "FIELDCITY" },
    { "State/Province", "FIELDSTATE" },
    { "Postal Code", "FIELDPOSTALCODE" },
    { "Country", "FIELDCOUNTRY" },
    { "Phone", "FIELDPHONE" },
    { "Email", "FIELDEMAIL" },
    { "Website", "FIELDWEBSITE" },
    { "Date Created", "FIELDDATECREATED" },
    { "Time Created", "FIELDTIMECREATED" },
    { "Location", "FIELDLOCATION" },
    { "Country Code", "FIELDCOUNTRYCODE" },
    { "Credit", "FIELDCREDIT" },
    { "Source", "FIELDSOURCE" },
    { "Headline", "FIELDHEADLINE" },
    { "Instructions", "FIELDINSTRUCTIONS" },
    { "Transmission Ref", "FIELDTRANSMISSIONREF" },
    { "Rights Usage Terms", "FIELDUSAGETERMS" },
    { "Intellectual Genre", "FIELDGENRE" },
    { "Scene", "FIELDSCENE" },
    { "Subject Code", "FIELDSUBJECTCODE" },
};

} // namespace

QString shownFieldText(const QString& catalogueText)
{
    for (const FieldText& text : kFieldTexts) {
        if (catalogueText == QLatin1String(text.catalogueText))
            return localized(text.key);
    }
    return catalogueText;
}

} // namespace tavrin
