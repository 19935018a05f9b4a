// The cells of workbooks as SheetJS sees them: {file: {sheet: {"row,column": value}}}.
// Usage: read_sheetjs.js FOLDER_WITH_SHEETJS OUTPUT.json FILE.xls ...
const [folder, output, ...files] = process.argv.slice(2);
const X = require(folder + '/xlsx'), fs = require('fs'), out = {};
for (const file of files) {
  const book = X.readFile(file);
  out[file] = {};
  for (const name of book.SheetNames) {
    const cells = out[file][name] = {};
    for (const [address, cell] of Object.entries(book.Sheets[name]))
      if (address[0] !== '!' && cell.t !== 'z') {
        const {r, c} = X.utils.decode_cell(address);
        cells[r + ',' + c] = cell.v;
      }
  }
}
fs.writeFileSync(output, JSON.stringify(out));
