#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

namespace brevaro {

// What a company deletion is doing, as kept in data/deletion.intent until it is done:
//   phase P                 the phases completed (0 to 3)
//   compact N COUNT         company N of COUNT leaves the company file
//   doom F / remove F       its program file F is set aside, then deleted
//   stage F / finish F K    a later company's program file F is set aside, then becomes K.dta
// Program files are named by number only ("7.dta"): the paths are the store's to derive.
struct DeletionIntent {
    struct Move {
        int from = 0; // the program file's number before the deletion
        int to = 0;   // and after it
    };

    int phase = 0;
    int doomedIndex = 0; // N: the record number of the deleted company
    int companyCount = 0;
    int doomedFile = 0;
    std::vector<Move> moves;

    // The largest number of companies a deletion may name.
    static constexpr int kMaxCompanies = 1'000'000;
    // The largest intent file that is read.
    static constexpr qint64 kMaxBytes = 64 * 1024 * 1024;

    QByteArray toBytes() const;
    // The intent in these bytes, or nothing with the reason in *error when any line, number or
    // name does not fit a deletion this program would have written.
    static std::optional<DeletionIntent> parse(const QByteArray& bytes, QString* error);
};

} // namespace brevaro
