#include "records/CompanyRecord.h"

#include <array>

namespace brevaro {
namespace {

using T = FieldType;
using I = PadImport;

constexpr std::array<RecordField, 22> kCompanyFields = {{
    {"CompanyID", T::Int32, 1, 1, 0},
    {"CompanyName", T::Text, 40, 1, 4, "Company_Name", "Company Name", I::CompanyName},
    {"Address1", T::Text, 30, 1, 44, "Address_1", "Address 1", I::Text},
    {"Address2", T::Text, 30, 1, 74, "Address_2", "Address 2", I::Text},
    {"CityTown", T::Text, 30, 1, 104, "City_Town", "City/Town", I::Text},
    {"StateProvince", T::Text, 25, 1, 134, "State_Province", "State/Province", I::Text},
    {"ZipPostalCode", T::Text, 25, 1, 159, "Zip_Postal_Code", "Zip/Postal Code", I::Text},
    {"Country", T::Text, 30, 1, 184, "Country", "Country", I::Text},
    {"CompanyWebSiteURL", T::Text, 128, 1, 214, "Company_WebSite_URL", "Company Website URL",
     I::Text},
    {"AuthorFirstName", T::Text, 25, 1, 342, "Author_First_Name", "Author First Name", I::Text},
    {"AuthorLastName", T::Text, 25, 1, 367, "Author_Last_Name", "Author Last Name", I::Text},
    {"AuthorEmail", T::Text, 60, 1, 392, "Author_Email", "Author Email", I::Text},
    {"ContactFirstName", T::Text, 25, 1, 452, "Contact_First_Name", "Contact First Name", I::Text},
    {"ContactLastName", T::Text, 25, 1, 477, "Contact_Last_Name", "Contact Last Name", I::Text},
    {"ContactEmail", T::Text, 60, 1, 502, "Contact_Email", "Contact Email", I::Text},
    {"SalesEmail", T::Text, 60, 1, 562, "Sales_Email", "Sales Email", I::Text},
    {"SupportEmail", T::Text, 60, 1, 622, "Support_Email", "Support Email", I::Text},
    {"GeneralEmail", T::Text, 60, 1, 682, "General_Email", "General Email", I::Text},
    {"SalesPhone", T::Text, 25, 1, 742, "Sales_Phone", "Sales Phone", I::Text},
    {"SupportPhone", T::Text, 25, 1, 767, "Support_Phone", "Support Phone", I::Text},
    {"GeneralPhone", T::Text, 25, 1, 792, "General_Phone", "General Phone", I::Text},
    {"FaxPhone", T::Text, 25, 1, 817, "Fax_Phone", "Fax Phone", I::Text},
}};

static_assert(isContiguous(kCompanyFields, CompanyRecord::kLength));
static_assert(static_cast<int>(CompanyField::FaxPhone) + 1 == kCompanyFields.size());

constexpr RecordLayout kCompanyLayout{"company", RecordSide::Company, kCompanyFields,
                                      CompanyRecord::kLength};

} // namespace

const RecordLayout& companyLayout() {
    return kCompanyLayout;
}

CompanyRecord::CompanyRecord()
    : TypedRecord(kCompanyLayout) {}

void CompanyRecord::clear() {
    const int id = number(CompanyField::CompanyID);
    resetToEmpty();
    setNumber(CompanyField::CompanyID, id);
}

} // namespace brevaro
