#include "records/CompanyRecord.h"

#include <array>

namespace brevaro {
namespace {

using T = FieldType;

constexpr std::array<FieldSpec, 22> kCompanyFields = {{
    {"CompanyID", T::Int32, 1, 1, 0},
    {"CompanyName", T::Text, 40, 1, 4},
    {"Address1", T::Text, 30, 1, 44},
    {"Address2", T::Text, 30, 1, 74},
    {"CityTown", T::Text, 30, 1, 104},
    {"StateProvince", T::Text, 25, 1, 134},
    {"ZipPostalCode", T::Text, 25, 1, 159},
    {"Country", T::Text, 30, 1, 184},
    {"CompanyWebSiteURL", T::Text, 128, 1, 214},
    {"AuthorFirstName", T::Text, 25, 1, 342},
    {"AuthorLastName", T::Text, 25, 1, 367},
    {"AuthorEmail", T::Text, 60, 1, 392},
    {"ContactFirstName", T::Text, 25, 1, 452},
    {"ContactLastName", T::Text, 25, 1, 477},
    {"ContactEmail", T::Text, 60, 1, 502},
    {"SalesEmail", T::Text, 60, 1, 562},
    {"SupportEmail", T::Text, 60, 1, 622},
    {"GeneralEmail", T::Text, 60, 1, 682},
    {"SalesPhone", T::Text, 25, 1, 742},
    {"SupportPhone", T::Text, 25, 1, 767},
    {"GeneralPhone", T::Text, 25, 1, 792},
    {"FaxPhone", T::Text, 25, 1, 817},
}};

static_assert(isContiguous(kCompanyFields, CompanyRecord::kLength));
static_assert(static_cast<int>(CompanyField::FaxPhone) + 1 == kCompanyFields.size());

constexpr RecordLayout kCompanyLayout{"company", kCompanyFields, CompanyRecord::kLength};

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
