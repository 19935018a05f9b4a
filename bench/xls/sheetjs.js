// sheetjs.js FOLDER_WITH_XLSX IN OUT: changes ten cells of the first sheet.
const XLSX = require(require("path").resolve(process.argv[2], "xlsx"));
const book = XLSX.readFile(process.argv[3], { cellStyles: true, bookVBA: true });
const sheet = book.Sheets[book.SheetNames[0]];
const step = Math.floor((XLSX.utils.decode_range(sheet["!ref"]).e.r + 1) / 10);
for (let i = 0; i < 10; ++i)
  sheet[XLSX.utils.encode_cell({ r: i * step, c: i % 3 })] = { t: "s", v: "změna" + i };
XLSX.writeFile(book, process.argv[4], { bookType: "biff8" });
