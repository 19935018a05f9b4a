#pragma once

#include <cstdint>
#include <vector>

namespace zvonika::xls {

/// The formats (Xf records) of a workbook: which of them cells may have, and which only styles.
class CellFormats {
public:
    void add(bool isStyle) { ofCells_.push_back(!isStyle); }

    /// A workbook without any formats has no wrong ones either.
    bool isOfCells(std::uint16_t format) const {
        return ofCells_.empty() || (format < ofCells_.size() && ofCells_[format]);
    }
    /// The format of cells that nothing else formats. Where all formats are of styles, the number of one that
    /// is still to be added behind them.
    std::uint16_t usual() const {
        constexpr std::uint16_t usualDefault =
            15; // some writers have a style more, and their first one is 16
        if (ofCells_.empty() || isOfCells(usualDefault)) return ofCells_.empty() ? 0 : usualDefault;
        std::uint16_t first = 0;
        while (first < ofCells_.size() && !ofCells_[first])
            ++first;
        return first;
    }
    bool lackUsual() const { return !ofCells_.empty() && usual() == ofCells_.size(); }

private:
    std::vector<bool> ofCells_;
};

/// Appends the Xf record of a cell without any attributes of its own, after the first style.
void appendPlainCellFormat(std::vector<std::uint8_t>& out);

} // namespace zvonika::xls
