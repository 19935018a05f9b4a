/* Reads every cell of a file with freexl: freexl_read FILE */
#include <freexl.h>
#include <stdio.h>
#include <string.h>

int main(int argc, char** argv) {
    const void* book;
    unsigned int sheets = 0;
    size_t cells = 0;
    double sum = 0;
    if (argc != 2 || freexl_open(argv[1], &book) != FREEXL_OK) return 1;
    if (freexl_get_info(book, FREEXL_BIFF_SHEET_COUNT, &sheets) != FREEXL_OK) return 1;
    for (unsigned short sheet = 0; sheet < sheets; ++sheet) {
        unsigned int rows;
        unsigned short columns;
        if (freexl_select_active_worksheet(book, sheet) != FREEXL_OK) return 1;
        if (freexl_worksheet_dimensions(book, &rows, &columns) != FREEXL_OK) return 1;
        for (unsigned int row = 0; row < rows; ++row)
            for (unsigned short column = 0; column < columns; ++column) {
                FreeXL_CellValue value;
                if (freexl_get_cell_value(book, row, column, &value) != FREEXL_OK) continue;
                if (value.type == FREEXL_CELL_NULL) continue;
                ++cells;
                if (value.type == FREEXL_CELL_INT) sum += value.value.int_value;
                if (value.type == FREEXL_CELL_DOUBLE) sum += value.value.double_value;
                if (value.type == FREEXL_CELL_TEXT || value.type == FREEXL_CELL_SST_TEXT)
                    sum += (double)strlen(value.value.text_value);
            }
    }
    printf("%zu cells %.17g\n", cells, sum);
    freexl_close(book);
    return 0;
}
