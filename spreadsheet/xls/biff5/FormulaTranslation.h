#pragma once

#include "spreadsheet/xls/biff5/CodePage.h"
#include "spreadsheet/xls/records/CellRecord.h"

#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace zvonika::xls {

/// What a formula showed last.
struct FormulaResult {
    bool isText = false;
    std::u16string text;
    CellContent content; ///< of a result that is no text
};

/// The formulas of one BIFF5 sheet. Throws FormatError.
class FormulaTranslation {
public:
    /// `sheet`: offset of the sheet's Bof record. The stream and the code page must outlive this.
    FormulaTranslation(ByteView stream, std::uint32_t sheet, const CodePage& codePage);

    /// Appends the BIFF8 records of a formula, with its shared part or array and its stored text. False, and
    /// nothing appended, when these cannot be told in BIFF8.
    bool append(const Record& formula, std::vector<std::uint8_t>& out) const;
    FormulaResult result(const Record& formula) const;

private:
    using Bytes = std::vector<std::uint8_t>;

    std::optional<Bytes> converted(const Record& record, std::size_t headSize) const;
    std::optional<Bytes> convertedPart(const Record& record) const;
    Bytes convertedText(const Record& record) const;

    ByteView stream_;
    const CodePage* codePage_;
    std::unordered_set<CellKey>
        holders_; ///< cells with a shared formula, array or data table that can be told
};

} // namespace zvonika::xls
