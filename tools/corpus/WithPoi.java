import java.io.ByteArrayInputStream;
import java.io.FileOutputStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import org.apache.poi.hssf.usermodel.*;
import org.apache.poi.hssf.util.HSSFColor;
import org.apache.poi.poifs.filesystem.DirectoryEntry;
import org.apache.poi.poifs.filesystem.POIFSFileSystem;
import org.apache.poi.ss.usermodel.FillPatternType;
import org.apache.poi.ss.util.CellRangeAddress;

/** Song files of Apache POI. Usage: java WithPoi.java TARGET_FOLDER SONG */
public class WithPoi {
    static List<String[]> song = new ArrayList<>();
    static Path target;

    static String textOf(int count) {
        StringBuilder text = new StringBuilder();
        for (int i = 0; i < count; i++) text.append(song.get(i % song.size())[0]);
        return text.toString();
    }

    static void fill(HSSFSheet sheet, int rows) {
        for (int row = 0; row < rows; row++) {
            String[] line = song.get(row % song.size());
            HSSFRow cells = sheet.createRow(row);
            for (int column = 0; column < 4; column++) cells.createCell(column).setCellValue(line[column]);
            cells.createCell(4).setCellValue(Double.parseDouble(line[4]));
            cells.createCell(5).setCellValue(row);
            cells.createCell(6).setCellValue(row % 2 == 0);
        }
    }

    static HSSFCellStyle yellow(HSSFWorkbook book) {
        HSSFCellStyle style = book.createCellStyle();
        style.setFillForegroundColor(HSSFColor.HSSFColorPredefined.YELLOW.getIndex());
        style.setFillPattern(FillPatternType.SOLID_FOREGROUND);
        return style;
    }

    static void comment(HSSFSheet sheet, HSSFCell cell) {
        HSSFPatriarch drawing = sheet.createDrawingPatriarch();
        HSSFComment comment = drawing.createCellComment(new HSSFClientAnchor(0, 0, 0, 0, (short) 4, 2, (short) 6, 5));
        comment.setString(new HSSFRichTextString("poznámka 𝄞"));
        comment.setAuthor("autor");
        cell.setCellComment(comment);
    }

    static void decorate(HSSFWorkbook book, HSSFSheet sheet) {
        HSSFCellStyle yellow = yellow(book), day = book.createCellStyle();
        day.setDataFormat(book.createDataFormat().getFormat("d. mmmm yyyy"));
        HSSFRow numbers = sheet.createRow(13), blanks = sheet.createRow(14), formulas = sheet.createRow(15);
        for (int column = 0; column < 6; column++) {
            numbers.createCell(column).setCellValue(11 * column);
            blanks.createCell(column).setCellStyle(yellow);
        }
        formulas.createCell(0).setCellFormula("A1&\"!\"");
        formulas.createCell(1).setCellFormula("SUM(E1:E6)");
        formulas.createCell(2).setCellFormula("1/0");
        sheet.setArrayFormula("E1:E2*2", CellRangeAddress.valueOf("E16:E17"));
        book.getCreationHelper().createFormulaEvaluator().evaluateAll();
        HSSFCell merged = sheet.createRow(17).createCell(0);
        merged.setCellValue(new HSSFRichTextString("sloučeno"));
        merged.getRichStringCellValue().applyFont(0, 3, book.createFont());
        sheet.addMergedRegion(CellRangeAddress.valueOf("A18:C19"));
        comment(sheet, merged);
        sheet.createRow(20).createCell(0).setCellValue(45000.5);
        sheet.getRow(20).getCell(0).setCellStyle(day);
        sheet.getRow(5).setRowStyle(yellow);
        sheet.setDefaultColumnStyle(8, yellow);
        sheet.setColumnWidth(0, 6000);
        sheet.createFreezePane(1, 1);
        book.createName().setNameName("Doba");
        book.getName("Doba").setRefersToFormula("Pisen!$E$1:$E$12");
        book.createSheet("Prázdný");
        book.createInformationProperties();
        book.getSummaryInformation().setTitle("Zpěvník");
    }

    /** Streams beside the workbook, in a storage of their own, as macros and embedded objects have them. */
    static void addStreams(Path file) throws Exception {
        try (POIFSFileSystem container = new POIFSFileSystem(file.toFile(), false)) {
            DirectoryEntry storage = container.getRoot().createDirectory("_VBA_PROJECT_CUR");
            DirectoryEntry inner = storage.createDirectory("VBA");
            byte[] large = new byte[5000];
            for (int i = 0; i < large.length; i++) large[i] = (byte) (i * 31);
            storage.createDocument("PROJECT", new ByteArrayInputStream("ID=\"{0}\"".getBytes()));
            inner.createDocument("dir", new ByteArrayInputStream(large));
            container.writeFilesystem();
        }
    }

    static void write(String name, int rows, boolean decorated, String... texts) throws Exception {
        Path file = target.resolve("poi-" + name + ".xls");
        try (HSSFWorkbook book = new HSSFWorkbook(); FileOutputStream out = new FileOutputStream(file.toFile())) {
            HSSFSheet sheet = book.createSheet(decorated ? "Pisen" : "Píseň");
            fill(sheet, rows);
            for (int row = 0; row < texts.length; row++) sheet.getRow(row).createCell(8).setCellValue(texts[row]);
            if (decorated) decorate(book, sheet);
            HSSFSheet other = book.createSheet("Druhý list");
            other.createRow(0).createCell(0).setCellValue("druhý");
            other.createRow(2).createCell(1).setCellValue(2);
            book.write(out);
        }
        if (decorated) addStreams(file);
    }

    public static void main(String[] arguments) throws Exception {
        target = Path.of(arguments[0]);
        for (String line : Files.readAllLines(Path.of(arguments[1]))) song.add(line.split("\t"));
        write("plain", 12, false);
        write("rich", 12, true);
        write("long", 12, false, textOf(70), textOf(1300), "x".repeat(9000), "𝄞".repeat(4200), "ř".repeat(4112));
        write("rows500", 500, false);
    }
}
