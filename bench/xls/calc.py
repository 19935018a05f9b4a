"""calc.py PORT IN OUT: changes ten cells in a LibreOffice that is running and listens on that port."""
import sys

import uno
from com.sun.star.beans import PropertyValue


def connect(port):
    local = uno.getComponentContext()
    resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
    context = resolver.resolve("uno:socket,host=localhost,port=%s;urp;StarOffice.ComponentContext" % port)
    return context.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", context)


def prop(name, value):
    return PropertyValue(Name=name, Value=value)


def main():
    desktop = connect(sys.argv[1])
    if sys.argv[2:] == ["quit"]:
        desktop.terminate()
    elif len(sys.argv) > 3:
        document = desktop.loadComponentFromURL("file://" + sys.argv[2], "_blank", 0, (prop("Hidden", True),))
        sheet = document.Sheets.getByIndex(0)
        cursor = sheet.createCursor()
        cursor.gotoEndOfUsedArea(False)
        step = (cursor.RangeAddress.EndRow + 1) // 10
        for i in range(10):
            sheet.getCellByPosition(i % 3, i * step).String = "změna%d" % i
        document.storeToURL("file://" + sys.argv[3], (prop("FilterName", "MS Excel 97"),))
        document.close(True)


main()
