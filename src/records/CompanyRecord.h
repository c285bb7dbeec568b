#pragma once

#include "records/TypedRecord.h"

namespace brevaro {

// Fields of a company record, in their order on disk.
enum class CompanyField {
    CompanyID,
    CompanyName,
    Address1,
    Address2,
    CityTown,
    StateProvince,
    ZipPostalCode,
    Country,
    CompanyWebSiteURL,
    AuthorFirstName,
    AuthorLastName,
    AuthorEmail,
    ContactFirstName,
    ContactLastName,
    ContactEmail,
    SalesEmail,
    SupportEmail,
    GeneralEmail,
    SalesPhone,
    SupportPhone,
    GeneralPhone,
    FaxPhone,
};

const RecordLayout& companyLayout();

// One company or private author: 842 bytes on disk.
class CompanyRecord : public TypedRecord<CompanyField> {
public:
    static constexpr int kLength = 842;
    CompanyRecord();

    // Blanks every text; CompanyID keeps its value.
    void clear();
};

} // namespace brevaro
