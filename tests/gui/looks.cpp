#include "session.h"

#include "app/looks.h"
#include "gui/records/listLook.h"
#include "gui/widgets/palette.h"
#include "search/colourRules.h"

// What is looked at more closely: zoom, frozen columns, colours, suggestions and empty pages.
class Looks : public GuiTest {
    Q_OBJECT

    static void ctrlWheel(QWidget& widget, QPoint at) {
        QWheelEvent wheel(at, widget.mapToGlobal(at), {}, {0, 120}, {}, Qt::ControlModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &wheel);
    }

private slots:
    void zoomIsOfTheViewAlone() {
        const DataFile data = DataFile("Name Qty:4", "Bolt|2;Nut|3").objects("F|Name|1440|1440|2000|1000");
        const QString file = database("zoom.fwk", data);
        {
            Session run(file);
            const auto& LV = *run.find<QTreeView>(u"LV"_s);
            const int height = LV.visualRect(LV.model()->index(0, 0)).height();
            run.act(u"press Ctrl++ 4"_s);
            QCOMPARE(LV.header()->sectionSize(0), 168);
            QVERIFY(LV.visualRect(LV.model()->index(0, 0)).height() > height * 3 / 2);
            run.act(u"drag LV.Name 84,0 165,8"_s); // its edge
            QCOMPARE(run.app.document.LV.columns["Name"].Width, 1440 * 1.5F);
            QTRY_VERIFY(run.find<QAction>(u"mnuUndo"_s)->isEnabled());
            run.act(u"press Ctrl+Z"_s);
            QCOMPARE(run.app.document.LV.columns["Name"].Width, 1440.0F);

            run.act(u"tab 1; click Design; press Ctrl+- 2; click f1 9,9"_s);
            const auto& field = *run.app.document.layout.layoutField.find(1);
            QVERIFY(layout::layoutPage(run.app).selectedObject.isObject());
            QCOMPARE(run.find<QWidget>(u"layoutField1"_s)->width(), 106); // 2000 twips at 80 %
            QCOMPARE(run.find<QWidget>(u"ruler1"_s)->height(), 19);
            run.act(u"drag f1 32,0 9,9"_s); // 600 twips
            QCOMPARE(field.Left, 2040.0F);
            QCOMPARE(layout::layoutPage(run.app).TwipsPerPixelX, 15.0F);
            // What is under the pointer stays there.
            auto& sheet = *run.find<QWidget>(u"layoutPic2"_s);
            run.window.resize(500, 400);
            run.act(u"press Ctrl++ 9"_s);
            QWidget& box = *run.find<QWidget>(u"layoutField1"_s);
            const QPointF before = QPointF(box.mapFrom(&sheet, QPoint(300, 300))) / box.width();
            const QPoint global = sheet.mapToGlobal(QPoint(300, 300));
            ctrlWheel(sheet, {300, 300});
            const QPointF after = QPointF(box.mapFromGlobal(global)) / box.width();
            QVERIFY((before - after).manhattanLength() < 0.03);
            run.act(u"click mnuExit"_s);
        }
        Session next(sample("books.fwk"));
        QCOMPARE(app::looks(next.app).listZoom, 175);
        next.act(u"tab 2; click mnuFitPage"_s);
        const auto& port = *next.find<QWidget>(u"rptPreview2"_s);
        QVERIFY(!next.find<QWidget>(u"rptVScroll1"_s)->isVisible());
        QVERIFY(app::looks(next.app).previewZoom < 80);
        next.act(u"click mnuFitWidth"_s);
        next.window.resize(next.window.width() - 100, 400);
        QVERIFY(next.find<QWidget>(u"rptVScroll1"_s)->isVisible());
        QVERIFY(!next.find<QWidget>(u"rptHScroll1"_s)->isVisible() && port.width() > 100);
    }

    void theThemeAndTheTextsAtOnceAndAtTheNextStart() {
        const QColor before = QApplication::palette().color(QPalette::Window);
        const auto style = [](Session& run) { return run.find<QToolBar>(u"Toolbar"_s)->toolButtonStyle(); };
        {
            Session run;
            run.act(u"click mnuThemeDark; click mnuTextsUnder"_s);
            QVERIFY(gui::isDark(QApplication::palette()));
            QVERIFY(run.find<QAction>(u"mnuThemeDark"_s)->isChecked());
            QVERIFY(!run.find<QAction>(u"mnuThemeDesktop"_s)->isChecked());
            QCOMPARE(style(run), Qt::ToolButtonTextUnderIcon);
            run.act(u"click mnuThemeLight"_s);
            QVERIFY(!gui::isDark(QApplication::palette()));
            run.act(u"click mnuThemeDark; click mnuExit"_s);
        }
        Session next(database("types.fwk", DataFile("A", "1")));
        QVERIFY(gui::isDark(QApplication::palette()));
        QCOMPARE(style(next), Qt::ToolButtonTextUnderIcon);
        next.act(u"click mnuThemeDesktop; click mnuTextsNone"_s);
        QCOMPARE(QApplication::palette().color(QPalette::Window), before);
        // The focus stays in the name while the keys choose the type.
        next.onDialog = [&](QDialog& dialog) {
            next.act(u"press Down 4; type B; press Return"_s);
            QVERIFY(dialog.findChild<QRadioButton*>(u"typeOpt4"_s)->isChecked());
        };
        next.platform.showForm("designFrm");
        QVERIFY(next.app.document.LV.columns["B"].isType(core::ColumnType::Text));
    }

    void theFirstColumnStays() {
        std::string columns, record;
        for (int column = 0; column < 20; ++column) {
            columns += "Column" + std::to_string(column) + " ";
            record += std::to_string(column) + "|";
        }
        Session run(database("wide.fwk", DataFile(columns, "b|" + record + ";a|" + record)));
        run.window.resize(600, 400);
        run.act(u"click mnuFreezeColumn"_s);
        auto& LV = *run.find<QTreeView>(u"LV"_s);
        LV.horizontalScrollBar()->setValue(500);
        QTest::mouseClick(LV.viewport(), Qt::LeftButton, {},
                          QPoint(20, LV.visualRect(LV.model()->index(1, 0)).center().y()));
        QCOMPARE(LV.currentIndex(), LV.model()->index(1, 0));
        run.act(u"press Up; press Shift+Down"_s);
        QCOMPARE(LV.selectionModel()->selectedRows().size(), 2);
        QCOMPARE(LV.horizontalScrollBar()->value(), 500);
        QTest::mouseClick(LV.findChild<QHeaderView*>(u"frozenHeader"_s)->viewport(), Qt::LeftButton, {},
                          QPoint(30, 8));
        QCOMPARE(LV.header()->sortIndicatorSection(), 0);
        QCOMPARE(LV.horizontalScrollBar()->value(), 500);
        run.app.document.LV.at(1).cells[3] = std::string(20, 'W');
        run.act(u"click mnuFreezeColumn"_s);
        LV.resizeColumnToContents(3);
        QTRY_VERIFY(run.find<QAction>(u"mnuUndo"_s)->isEnabled());
        QVERIFY(run.app.document.LV.columns["Column3"].Width > 2000);
        run.act(u"press Ctrl+Z"_s);
        QCOMPARE(run.app.document.LV.columns["Column3"].Width, 1440.0F);
    }

    void coloursAreToldToo() {
        Session run(database("colours.fwk", DataFile("Name Qty:4", "Bolt|12;Nut|7")));
        run.play(R"(
click mnuColours; press Down; press Tab; press Down 3; press Tab; type x; press Return -> coloursFrm=Colours List1=1
    Combo1_0=3 Text1_0=[x]
type 10; press Return -> -coloursFrm LV=*
)");
        const QModelIndex cell = run.find<QTreeView>(u"LV"_s)->model()->index(0, 1);
        QCOMPARE(cell.data(Qt::AccessibleTextRole).toString(), u"12: above 10"_s);
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(), u"Qty: above 10"_s);
        QVERIFY(!cell.data(gui::markRole).isNull() && cell.siblingAtRow(1).data(gui::markRole).isNull());
    }

    // The list under a box takes no key from it that was not asked for.
    void suggestionsLeaveTheKeys() {
        const DataFile data = DataFile("Name Bed Qty:4", "Oak|North|2;Olive|North|3;Oak|South|10")
                                  .objects("F|Name|1440|1440|2000|400;F|Qty|1440|2440|2000|400");
        Session run(database("suggest.fwk", data));
        const auto list = [&] {
            auto* shown = QApplication::focusWidget()->window()->findChild<QListWidget*>(u"suggestions"_s);
            QStringList values;
            for (int row = 0; shown->isVisible() && row < shown->count(); ++row)
                values << (row == shown->currentRow() ? u">"_s : u""_s) + shown->item(row)->text();
            return values.join(u' ');
        };
        const auto inBox = [&](const char* acts) {
            run.act(QString::fromLatin1(acts));
            const QWidget& box = *QApplication::focusWidget();
            const QString text = box.property(box.inherits("QLineEdit") ? "text" : "plainText").toString();
            return box.objectName() + u'=' + text + u": "_s + list();
        };
        run.onDialog = [&](QDialog& form) {
            QCOMPARE(inBox("fill FieldBox0 o"), u"FieldBox0=o: Oak Olive"_s);
            QCOMPARE(inBox("press Down"), u"FieldBox1=North: "_s);
            QCOMPARE(inBox("press Up; press End; type x"), u"FieldBox0=ox: "_s);
            QCOMPARE(inBox("fill FieldBox0 o; press Return"), u"FieldBox1=North: "_s);
            QCOMPARE(inBox("fill FieldBox0 ol; press Tab"), u"FieldBox1=North: "_s);
            QCOMPARE(inBox("fill FieldBox0 ol; press Escape"), u"FieldBox0=ol: "_s);
            QCOMPARE(inBox("type i; press Ctrl+Space"), u"FieldBox0=Olive: "_s);
            QCOMPARE(inBox("press Alt+Down"), u"FieldBox0=Olive: Oak >Olive"_s);
            QCOMPARE(inBox("press Up; press Return"), u"FieldBox0=Oak: "_s);
            QCOMPARE(inBox("click FieldBox2; press Alt+Down; press Down"), u"FieldBox2=2: 2 >3 10"_s);
            QCOMPARE(inBox("press Tab"), u"prevChk0=: "_s);
            auto* shown = form.findChild<QListWidget*>(u"suggestions"_s);
            QCOMPARE(inBox("fill FieldBox0 o"), u"FieldBox0=o: Oak Olive"_s);
            QTest::mouseClick(shown->viewport(), Qt::LeftButton, {},
                              shown->visualItemRect(shown->item(1)).center());
            QCOMPARE(inBox("press End"), u"FieldBox0=Olive: "_s);
        };
        run.act(u"press Home; press Return"_s);
        run.onDialog = nullptr;
        run.act(u"tab 1"_s);
        QCOMPARE(inBox("fill f1 o"), u"layoutField1=o: Oak Olive"_s);
        QCOMPARE(inBox("press Left; press Ctrl+Space"), u"layoutField1=Oak: "_s);
        QCOMPARE(QString::fromStdString(run.app.document.layout.layoutField.find(1)->Text), u"Oak"_s);
        QCOMPARE(inBox("press Tab; press Alt+Down; press Up; press Return"), u"layoutField2=2: "_s);
        QCOMPARE(inBox("press Alt+Down; press Tab"), u"qt_tabwidget_tabbar=: "_s);
    }

    void emptyPagesSayWhatToDo() {
        Session run(database("empty.fwk", DataFile("Name")));
        run.play(R"(
press Tab -> hint_mnuNewRecord=*
tab 1; click hint_Design -> Totals=- Properties=- Design=x ...
)");
        QVERIFY(run.app.mainFrm.control("Design").Value);
        run.act(u"tool Field Name; click Design"_s);
        QVERIFY(!run.find<QWidget>(u"layoutPic1"_s)->findChild<QWidget*>(u"emptyHint"_s)->isVisible());
        run.act(u"tab 2; click hint_mnuNewRecord"_s);
        QCOMPARE(run.app.mainFrm.SSTab1, int(app::reportTab));
    }
};

GUI_TEST(Looks)
#include "looks.moc"
