#include "tests/spreadsheet/xls/XlsFiles.h"

#include "spreadsheet/xls/container/CompoundFile.h"

#include <algorithm>
#include <bit>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>

namespace xlstest {

using zvonika::xls::CompoundFile;

namespace {

const std::set<std::uint16_t> cellIds{0x0206, 0x0406, 0x0006, 0x00BD, 0x00BE, 0x00D6,
                                      0x00FD, 0x0201, 0x0203, 0x0204, 0x0205, 0x027E};
const std::set<std::uint16_t> tableIds{0x0208, 0x00D7, 0x0207, 0x04BC, 0x0221};

bool isTable(const Rec& record) {
    return cellIds.contains(record.id) || tableIds.contains(record.id);
}

} // namespace

Bytes readFixture(const std::string& name) {
    std::ifstream in(std::string(XLS_DATA) + "/" + name, std::ios::binary);
    if (!in) throw std::runtime_error("no fixture " + name);
    return Bytes(std::istreambuf_iterator<char>(in), {});
}

Bytes le(int size, const std::vector<std::uint64_t>& values) {
    Bytes out;
    for (const std::uint64_t value : values)
        for (int i = 0; i < size; ++i)
            out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    return out;
}

Bytes operator+(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

Bytes streamOf(const Bytes& file) {
    const CompoundFile container(file);
    return container.readStream(*container.findStream("Workbook"));
}

Bytes fileAround(const Bytes& stream) {
    const CompoundFile container = CompoundFile::withEmptyStream("Workbook");
    return container.withStream(*container.findStream("Workbook"), stream);
}

std::vector<Rec> recordsOf(const Bytes& file) {
    const Bytes stream = streamOf(file);
    std::vector<Rec> records;
    for (std::size_t at = 0; at + 4 <= stream.size();) {
        const std::size_t size = static_cast<std::size_t>(stream[at + 2] | stream[at + 3] << 8);
        const auto begin = stream.begin() + static_cast<std::ptrdiff_t>(at) + 4;
        const auto id = static_cast<std::uint16_t>(stream[at] | stream[at + 1] << 8);
        if (id == 0) break; // what fills the stream up
        records.push_back(
            {id, Bytes(begin, begin + static_cast<std::ptrdiff_t>(size)), static_cast<std::uint32_t>(at)});
        at += 4 + size;
    }
    return records;
}

Bytes bytesOf(const std::vector<Rec>& records) {
    Bytes out;
    for (const Rec& record : records)
        out = out + le(2, {record.id, record.data.size()}) + record.data;
    return out;
}

std::vector<Rec> tableOf(const Bytes& file) {
    const std::vector<Rec> all = recordsOf(file);
    const auto begin = std::ranges::find_if(all, isTable);
    const auto end = std::find_if_not(begin, all.end(), isTable);
    return {begin, end};
}

const Rec* find(const std::vector<Rec>& records, std::uint16_t id) {
    const auto found = std::ranges::find(records, id, &Rec::id);
    return found == records.end() ? nullptr : &*found;
}

Bytes moved(std::vector<Rec> records) {
    const auto sheet = std::find_if(records.begin() + 1, records.end(),
                                    [](const Rec& record) { return record.id == 0x0809; });
    const Bytes position = le(4, {bytesOf({records.begin(), sheet}).size()});
    std::ranges::copy(position, std::ranges::find(records, 0x0085, &Rec::id)->data.begin());
    return fileAround(bytesOf(records));
}

Bytes fileWithTable(const std::vector<Rec>& table) {
    std::vector<Rec> all = recordsOf(Workbook::create(u"List").save());
    const auto dimensions = std::ranges::find(all, 0x0200, &Rec::id);
    all.insert(dimensions + 1, table.begin(), table.end());
    return fileAround(bytesOf(all));
}

Rec numberCell(int row, int column, double number, int format) {
    const auto unsign = [](int value) { return static_cast<std::uint64_t>(value); };
    return {0x0203, le(2, {unsign(row), unsign(column), unsign(format)}) +
                        le(8, {std::bit_cast<std::uint64_t>(number)})};
}

Rec dbCellOf(const std::vector<Rec>& table) {
    std::uint64_t at = 0;
    std::map<std::uint16_t, std::uint64_t> firstCells;
    for (const Rec& record : table) {
        if (cellIds.contains(record.id)) firstCells.try_emplace(record.u16(0), at);
        at += 4 + record.data.size();
    }
    Bytes data = le(4, {at});
    std::uint64_t before = 20;
    for (const auto& [row, first] : firstCells) {
        data = data + le(2, {first - before});
        before = first;
    }
    return {0x00D7, data};
}

std::string offsetFaults(const Bytes& file, const Bytes& original) {
    const std::vector<Rec> theirs = original.empty() ? std::vector<Rec>() : recordsOf(original);
    std::string faults;
    std::map<std::uint32_t, std::uint16_t> at;
    const std::vector<Rec> all = recordsOf(file);
    for (const Rec& record : all)
        at[record.offset] = record.id;
    std::vector<Rec> block;
    for (const Rec& record : all) {
        if (record.id == 0x0085 && at[record.u32(0)] != 0x0809) faults += "BoundSheet ";
        if (record.id == 0x0208 || !block.empty() || cellIds.contains(record.id)) block.push_back(record);
        if (record.id == 0x00D7) {
            block.pop_back();
            if (std::ranges::find(theirs, record) == theirs.end() && !(dbCellOf(block) == record))
                faults += "DbCell " + std::to_string(record.offset) + " ";
            block.clear();
        }
        if (record.id != 0x020B) continue;
        for (std::size_t i = 16; i + 4 <= record.data.size(); i += 4)
            if (at[record.u32(i)] != 0x00D7) faults += "Index ";
        if (record.u32(12) != 0 && at[record.u32(12)] != 0x0055) faults += "Index-DefColWidth ";
    }
    return faults;
}

} // namespace xlstest
