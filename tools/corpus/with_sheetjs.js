// Song files of SheetJS. Usage: with_sheetjs.js TARGET_FOLDER SONG (NODE_PATH names the folder with "xlsx")
const X = require('xlsx'), fs = require('fs'), path = require('path');
const [target, source] = process.argv.slice(2);
const song = fs.readFileSync(source, 'utf8').trimEnd().split('\n').map(line => line.split('\t'));
const textOf = count => Array.from({length: count}, (_, i) => song[i % song.length][0]).join('');

function table(rows) {
  return Array.from({length: rows}, (_, row) => {
    const line = song[row % song.length];
    return [...line.slice(0, 4), Number(line[4]), row, row % 2 === 0];
  });
}

function decorate(sheet) {
  sheet.A16 = {t: 's', v: 'Koč-!', f: 'A1&"!"'};
  sheet.B16 = {t: 'n', v: 2.475, f: 'SUM(E1:E6)'};
  sheet.A18 = {t: 's', v: 'sloučeno', c: [{a: 'autor', t: 'poznámka ř'}]};
  sheet.A21 = {t: 'n', v: 45000.5, z: 'd. mmmm yyyy'};
  sheet.C21 = {t: 'e', v: 0x2A};
  sheet['!ref'] = 'A1:G21';
  sheet['!merges'] = [{s: {r: 17, c: 0}, e: {r: 18, c: 2}}];
  sheet['!cols'] = [{wch: 24}];
}

function write(name, options, rows = 12, decorated = false, texts = []) {
  const book = X.utils.book_new(), sheet = X.utils.aoa_to_sheet(table(rows));
  texts.forEach((text, row) => X.utils.sheet_add_aoa(sheet, [[text]], {origin: {r: row, c: 8}}));
  if (decorated) decorate(sheet);
  X.utils.book_append_sheet(book, sheet, 'Píseň');
  X.utils.book_append_sheet(book, X.utils.aoa_to_sheet([['druhý'], [], [null, 2]]), 'Druhý list');
  if (decorated) X.utils.book_append_sheet(book, X.utils.aoa_to_sheet([[]]), 'Prázdný');
  if (decorated) book.Props = {Title: 'Zpěvník', Author: 'autor'};
  X.writeFile(book, path.join(target, name), {bookType: 'biff8', ...options});
}

const long = [textOf(30), '𝄞'.repeat(120), textOf(40)];
write('sheetjs-plain.xls', {bookSST: false});
write('sheetjs-rich.xls', {bookSST: true}, 12, true);
write('sheetjs-long.xls', {bookSST: true}, 12, false, long);
write('sheetjs-rows500.xls', {bookSST: true}, 500);
