#include "spreadsheet/xls/biff5/FormulaTokens.h"

#include "spreadsheet/xls/strings/UnicodeText.h"

#include <algorithm>

namespace zvonika::xls {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t longestTokens = 8000; ///< both versions; keeps the record within its limit
constexpr std::uint32_t rowMask = 0x3FFF;
constexpr std::uint32_t relativeFlags = 0xC000;
constexpr std::uint32_t lastOldRow = 16383;
constexpr std::uint32_t lastRow = 65535;

enum class Kind : std::uint8_t { Unknown, Copied, Reference, Offset, Area, AreaOffset, Text, Attribute };

struct Token {
    Kind kind = Kind::Unknown;
    std::uint8_t size = 0; ///< of the operand in BIFF5
};

/// By the token's number; of the operand classes (0x20, 0x40, 0x60) the first stands for all.
Token tokenOf(std::uint8_t id) {
    if (id >= 0x80) return {};
    if (id >= 0x40) id = static_cast<std::uint8_t>((id & 0x1F) | 0x20);
    if (id >= 0x03 && id <= 0x16) return {Kind::Copied, 0}; // operators, brackets, a missing argument
    switch (id) {
    case 0x01: // stands for a shared formula or an array
    case 0x02: // stands for a data table
        return {Kind::Copied, 4};
    case 0x17:
        return {Kind::Text, 1};
    case 0x19:
        return {Kind::Attribute, 3};
    case 0x1C: // error
    case 0x1D: // truth value
        return {Kind::Copied, 1};
    case 0x1E: // integer
    case 0x21: // function
        return {Kind::Copied, 2};
    case 0x1F: // number
        return {Kind::Copied, 8};
    case 0x22: // function with a number of arguments
        return {Kind::Copied, 3};
    case 0x24:
    case 0x2A: // a reference that is no more
        return {Kind::Reference, 3};
    case 0x25:
    case 0x2B:
        return {Kind::Area, 6};
    case 0x2C:
        return {Kind::Offset, 3};
    case 0x2D:
        return {Kind::AreaOffset, 6};
    default:
        return {};
    }
}

/// Rows of an offset count up from the cell or, as large numbers, down.
std::uint32_t widenedOffset(std::uint32_t row) {
    constexpr std::uint32_t half = (rowMask + 1) / 2;
    return row >= half ? row | relativeFlags : row;
}

class Converter {
public:
    Converter(ByteView in, const CodePage& codePage) : in_(in), codePage_(codePage) {}

    bool run() {
        if (in_.size() > longestTokens) return false;
        while (at_ < in_.size()) {
            places_.push_back({at_, out_.size()});
            if (!convert()) return false;
        }
        places_.push_back({at_, out_.size()});
        return std::ranges::all_of(jumps_, [this](const Jump& jump) { return mend(jump); });
    }

    Bytes take() { return std::move(out_); }

private:
    struct Place {
        std::size_t old;
        std::size_t fresh;
    };
    struct Jump {
        std::size_t field; ///< of the distance, in out_
        std::size_t target;
        bool counted; ///< the distance is one less than it reads
    };

    bool convert() {
        const std::uint8_t id = in_[at_++];
        const Token token = tokenOf(id);
        if (token.kind == Kind::Unknown || in_.size() - at_ < token.size) return false;
        const std::uint8_t* operand = in_.data() + at_;
        at_ += token.size;
        out_.push_back(id);
        switch (token.kind) {
        case Kind::Text:
            return text(operand[0]);
        case Kind::Attribute:
            return attribute(operand);
        case Kind::Reference:
        case Kind::Offset:
            reference(load16(operand), operand[2], token.kind == Kind::Offset);
            return true;
        case Kind::Area:
        case Kind::AreaOffset:
            area(operand, token.kind == Kind::AreaOffset);
            return true;
        default:
            out_.insert(out_.end(), operand, operand + token.size);
            return true;
        }
    }

    bool text(std::size_t length) {
        if (in_.size() - at_ < length) return false;
        appendShortText(out_, codePage_.decode(in_.subspan(at_, length)));
        at_ += length;
        return true;
    }

    void reference(std::uint32_t row, std::uint32_t column, bool isOffset) {
        const bool relative = row & relativeFlags & 0x8000;
        append16(out_, isOffset && relative ? widenedOffset(row & rowMask) : row & rowMask);
        append16(out_, column | (row & relativeFlags));
    }

    void area(const std::uint8_t* operand, bool isOffset) {
        const std::uint32_t rows[] = {load16(operand), load16(operand + 2)};
        const bool wholeColumns = !isOffset && (rows[0] & rowMask) == 0 && (rows[1] & rowMask) == lastOldRow;
        for (const std::uint32_t row : rows) {
            const bool widened = isOffset && (row & 0x8000);
            append16(out_, widened ? widenedOffset(row & rowMask) : row & rowMask);
        }
        if (wholeColumns) store16(&out_[out_.size() - 2], lastRow);
        append16(out_, operand[4] | (rows[0] & relativeFlags));
        append16(out_, operand[5] | (rows[1] & relativeFlags));
    }

    /// What a formula says of itself: jumps of IF and its like, spaces, "is volatile", "a sum of one".
    bool attribute(const std::uint8_t* operand) {
        constexpr std::uint8_t jumpIf = 0x02, choose = 0x04, jump = 0x08;
        if (operand[0] & choose) return false;
        if (operand[0] & (jumpIf | jump)) {
            const bool counted = operand[0] & jump;
            jumps_.push_back({out_.size() + 1, at_ + load16(operand + 1) + counted, counted});
        }
        out_.insert(out_.end(), operand, operand + 3);
        return true;
    }

    bool mend(const Jump& jump) {
        const auto place = std::ranges::find(places_, jump.target, &Place::old);
        if (place == places_.end()) return false;
        const std::size_t from = jump.field + 2 + jump.counted;
        if (place->fresh < from) return false;
        store16(&out_[jump.field], static_cast<std::uint32_t>(place->fresh - from));
        return true;
    }

    ByteView in_;
    const CodePage& codePage_;
    std::size_t at_ = 0;
    Bytes out_;
    std::vector<Place> places_; ///< where each token stood and stands
    std::vector<Jump> jumps_;
};

} // namespace

std::optional<Bytes> convertTokens(ByteView tokens, const CodePage& codePage) {
    Converter converter(tokens, codePage);
    if (!converter.run()) return std::nullopt;
    return converter.take();
}

} // namespace zvonika::xls
