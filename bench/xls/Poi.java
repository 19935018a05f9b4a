import java.io.FileInputStream;
import java.io.FileOutputStream;
import org.apache.poi.hssf.usermodel.HSSFSheet;
import org.apache.poi.hssf.usermodel.HSSFWorkbook;
import org.apache.poi.ss.usermodel.Row;

/** Poi IN OUT: changes ten cells of the first sheet. */
public class Poi {
    public static void main(String[] args) throws Exception {
        try (FileInputStream in = new FileInputStream(args[0]); HSSFWorkbook book = new HSSFWorkbook(in);
             FileOutputStream out = new FileOutputStream(args[1])) {
            HSSFSheet sheet = book.getSheetAt(0);
            int step = (sheet.getLastRowNum() + 1) / 10;
            for (int i = 0; i < 10; ++i)
                sheet.getRow(i * step).getCell(i % 3, Row.MissingCellPolicy.CREATE_NULL_AS_BLANK).setCellValue("změna" + i);
            book.write(out);
        }
    }
}
