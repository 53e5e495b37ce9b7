#include "utils/dialogs/generic_input_dialog.h"

#include <QApplication>
#include <QTranslator>
#include <climits>

#include "tests/dialogs/desktop_machine.h"
#include "tests/dialogs/gui_events.h"
#include "utils/dialogs/dpi.h"

namespace orvik::testing {
namespace {

class Words final : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* key, const char* /*comment*/, int /*count*/) const override {
    return QByteArray(key).isEmpty() ? QStringLiteral("file header")
                                     : QStringLiteral("<%1 %2>").arg(QLatin1String(context), QLatin1String(key));
  }
};

class GenericInputDialogTest : public DesktopMachine {
 protected:
  static std::unique_ptr<GenericInputDialog> Show(InputRequest& request) {
    auto dialog = std::make_unique<GenericInputDialog>(&request, "RAID", nullptr);
    dialog->show();
    EXPECT_TRUE(WaitFor([&] { return dialog->isActiveWindow(); }, 5000));
    return dialog;
  }

  static QWidget* Child(const QWidget& dialog, const char* name) { return dialog.findChild<QWidget*>(name); }

  static QString Focus() {
    const QWidget* widget = QApplication::focusWidget();
    return widget == nullptr ? QString() : widget->objectName();
  }

  static void Click(const QWidget& dialog, const char* name) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
      MouseEvent(Child(dialog, name), type);
    EXPECT_FALSE(dialog.isVisible());
  }
};

TEST_F(GenericInputDialogTest, ButtonsGiveTheirAnswers) {
  struct Row {
    std::uint32_t buttons;
    std::vector<const char*> names;
    std::vector<std::uint32_t> answers;
  };
  const std::vector<Row> rows = {{0, {"generic_input_button_ok"}, {1}},
                                 {1, {"generic_input_button_ok", "generic_input_button_cancel"}, {1, 2}},
                                 {2, {"generic_input_button_yes", "generic_input_button_no"}, {3, 4}},
                                 {3, {}, {}}};
  for (const Row& row : rows) {
    const auto request = Question(0, row.buttons);
    EXPECT_EQ(Show(*request)->findChild<QWidget*>("generic_input_widget_footer")->findChildren<QPushButton*>().size(),
              static_cast<qsizetype>(row.names.size()));
    EXPECT_EQ(request->answer, 0U);
    for (std::size_t i = 0; i < row.names.size(); ++i) {
      const auto dialog = Show(*request);
      if (i > 0) {
        const int left = Child(*dialog, row.names[i - 1])->geometry().right();
        EXPECT_GT(Child(*dialog, row.names[i])->x() - left, 10);
      }
      Click(*dialog, row.names[i]);
      EXPECT_EQ(request->answer, row.answers[i]);
      for (const int unknown : {-2, 4}) {
        Show(*request)->OnAnswer(unknown);
        EXPECT_EQ(request->answer, 0U);
      }
    }
    request->answer = 99;
    Click(*Show(*request), "generic_input_header_close");
    EXPECT_EQ(request->answer, 0U);
  }
}

TEST_F(GenericInputDialogTest, IconFollowsTheKind) {
  const std::vector<std::pair<std::uint32_t, QString>> rows = {
      {0, "question"}, {1, "information"}, {2, "information"}, {3, "warning"},
      {4, "error"},    {5, "question"},    {6, "information"}};
  for (const auto& [kind, name] : rows) {
    const auto request = Question(kind, 0);
    const auto dialog = Show(*request);
    auto* icon = dialog->findChild<QLabel*>("generic_input_" + name + "_icon");
    ASSERT_NE(icon, nullptr) << kind;
    // The style library has a picture for it: something is drawn on the header's colour.
    const QImage image = icon->grab().toImage();
    const QColor corner = image.pixelColor(1, 1);
    bool drawn = false;
    for (int x = 0; x < image.width(); ++x) drawn = drawn || image.pixelColor(x, image.height() / 2) != corner;
    EXPECT_TRUE(drawn) << kind;
  }
}

TEST_F(GenericInputDialogTest, KeysMoveTheFocusAndOnlyEscapeAnswers) {
  const auto request = Question(0, 1);
  const auto dialog = Show(*request);
  EXPECT_EQ(Focus(), "generic_input_button_ok");
  for (const auto& [key, focus] :
       std::vector<std::pair<Qt::Key, QString>>{{Qt::Key_Down, "generic_input_button_cancel"},
                                                {Qt::Key_Down, "generic_input_header_close"},
                                                {Qt::Key_Return, "generic_input_header_close"},
                                                {Qt::Key_Up, "generic_input_button_cancel"},
                                                {Qt::Key_Enter, "generic_input_button_cancel"},
                                                {Qt::Key_Up, "generic_input_button_ok"},
                                                {Qt::Key_Return, "generic_input_button_ok"},
                                                {Qt::Key_A, "generic_input_button_ok"},
                                                {Qt::Key_Up, "generic_input_header_close"}}) {
    PressKey(QApplication::focusWidget(), key);
    EXPECT_EQ(Focus(), focus);
    EXPECT_TRUE(dialog->isVisible());
  }
  // Keys that reach the dialog itself move the focus as well.
  PressKey(dialog.get(), Qt::Key_Down);
  EXPECT_EQ(Focus(), "generic_input_button_ok");
  QApplication::focusWidget()->clearFocus();
  PressKey(dialog.get(), Qt::Key_Return);
  EXPECT_EQ(Focus(), "generic_input_button_ok");
  request->answer = 99;
  PressKey(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(request->answer, 0U);
}

TEST_F(GenericInputDialogTest, ScreenReaderStartsAtTheTitle) {
  for (const bool narrator : {false, true}) {
    Install({.screenReader = !narrator, .narrator = narrator});
    Words words;
    QCoreApplication::installTranslator(&words);
    const auto request = Question(0, 2);
    const auto dialog = Show(*request);
    EXPECT_EQ(Focus(), "generic_input_header_label");
    EXPECT_EQ(Child(*dialog, "generic_input_header_close")->accessibleDescription(), "<QT_SERVER_APP CLOSE_POP_UP>");
    QStringList passed;
    for (int i = 0; i < 5; ++i) {
      PressKey(dialog.get(), Qt::Key_Down);
      passed.append(Focus().section('_', 2));
    }
    EXPECT_EQ(passed.join(' '), "header_close instruction_label button_yes button_no header_label");
  }
}

TEST_F(GenericInputDialogTest, TextsAreTranslatedWordByWord) {
  Words words;
  QCoreApplication::installTranslator(&words);
  const auto request = Question(0, 1);
  InputFieldLabel field("FIELD", "TIP");
  request->fields = {nullptr, &field};
  const auto shown = [&](const char* name) { return Show(*request)->findChild<QLabel*>(name)->text(); };
  EXPECT_EQ(shown("generic_input_header_label"), "<RAID TITLE>");
  EXPECT_EQ(shown("generic_input_instruction_label"), "<RAID FIRST> <RAID SECOND>");
  const auto dialog = Show(*request);
  EXPECT_EQ(dialog->windowTitle(), "<QT_SERVER_APP APPLICATION_NAME>");
  EXPECT_EQ(dialog->findChild<QPushButton*>("generic_input_button_cancel")->text(), "<QT_SERVER_APP CANCEL>");
  const auto* label = Child(*dialog, "generic_input_widget_fields")->findChild<QLabel*>();
  ASSERT_NE(label, nullptr);
  EXPECT_TRUE(label->isVisible());
  EXPECT_EQ(label->text() + label->toolTip(), "<RAID FIELD><RAID TIP>");
  const QRect room(0, 0, 275, QWIDGETSIZE_MAX);
  EXPECT_EQ(label->maximumHeight(),
            label->fontMetrics().boundingRect(room, Qt::TextWordWrap, label->text()).height());

  request->fields.clear();
  EXPECT_FALSE(Child(*Show(*request), "generic_input_widget_fields")->isVisible());
  request->text = "  ";
  EXPECT_EQ(shown("generic_input_instruction_label"), "  ");
}

TEST_F(GenericInputDialogTest, WidthFollowsTheTitle) {
  const auto request = Question(0, 1);
  const QWidget mainWindow;
  const auto scaled = [](int width) { return Dpi::Instance()->Scaled(QSize(width, 0)).width(); };
  const auto widths = [&] {
    const auto dialog = Show(*request);
    return std::pair(dialog->width(), Child(*dialog, "generic_input_instruction_label")->width());
  };
  EXPECT_EQ(widths(), std::pair(scaled(331), scaled(291)));
  request->title = std::string(40, 'M');
  const int wide = QFontMetrics(QApplication::font()).horizontalAdvance(QString(40, 'M')) + 80;
  EXPECT_EQ(widths(), std::pair(scaled(wide), scaled(wide - 40)));
}

// Whether all lines of the label's text are inside the label.
void ExpectTextInside(const QLabel& label) {
  const QRect inside = label.contentsRect();
  const QRect room(0, 0, inside.width(), QWIDGETSIZE_MAX);
  EXPECT_LE(label.fontMetrics().boundingRect(room, Qt::TextWordWrap, label.text()).height(), inside.height())
      << label.text().toStdString();
}

// Run at several DPIs: CMakeLists.txt.
TEST_F(GenericInputDialogTest, NoLineOfTheTextIsCut) {
  const auto dpi = static_cast<std::uint32_t>(QGuiApplication::primaryScreen()->logicalDotsPerInch());
  const auto show = [](const std::string& title, const std::string& text) {
    const auto request = Question(1, 1);
    request->title = title;
    request->text = text;
    const auto dialog = Show(*request);
    for (const char* name : {"generic_input_header_label", "generic_input_instruction_label"})
      ExpectTextInside(*dialog->findChild<QLabel*>(name));
  };
  for (const bool highContrast : {false, true}) {
    Install({.highContrast = highContrast, .dpi = dpi});
    for (const char* language : {"en", "de"}) {
      QTranslator texts;
      ASSERT_TRUE(texts.load(QStringLiteral(ORVIK_TRANSLATIONS "/orvik_%1.qm").arg(language)));
      show(texts.translate("RAID", "CHECK_CONSISTENCY_ALREADY_IN_PROGRESS").toStdString(),
           texts.translate("RAID", "CANCEL_AND_START_NEW_CHECK_CONSISTENCY_ON_LOGICAL_DRIVE_QUESTION").toStdString());
    }
    std::string text = "Word";
    for (int words = 1; words < 40; ++words) show("Title", text += words % 3 == 0 ? " verylongword" : " and");
  }
}

TEST_F(GenericInputDialogTest, TitleWiderThanTheScreenLeavesTheButtonsOnIt) {
  const auto request = Question(0, 1);
  request->title = std::string(100000, 'M');
  const auto dialog = Show(*request);
  for (const char* name : {"generic_input_header_close", "generic_input_button_ok"}) {
    const QWidget* button = Child(*dialog, name);
    EXPECT_LE(button->mapTo(dialog.get(), button->rect().bottomRight()).x(), dialog->screen()->size().width());
    EXPECT_GT(button->width(), 10) << name;
  }
}

TEST_F(GenericInputDialogTest, HeaderDragsTheWindow) {
  const auto request = Question(0, 1);
  const auto dialog = Show(*request);
  QWidget* header = Child(*dialog, "generic_input_widget_header");
  struct Row {
    bool overHeader;
    bool overClose;
    bool drags;
  };
  for (const auto& [overHeader, overClose, drags] :
       {Row{true, false, true}, Row{true, true, false}, Row{false, false, false}}) {
    header->setAttribute(Qt::WA_UnderMouse, overHeader);
    Child(*dialog, "generic_input_header_close")->setAttribute(Qt::WA_UnderMouse, overClose);
    QWidget* label = Child(*dialog, overHeader ? "generic_input_header_label" : "generic_input_instruction_label");
    const QPoint start = dialog->pos();
    MouseEvent(label, QEvent::MouseButtonPress);
    EXPECT_EQ(dialog->cursor().shape() == Qt::ClosedHandCursor, drags);
    MouseEvent(label, QEvent::MouseMove, {30, 20});
    EXPECT_EQ(dialog->pos() - start, drags ? QPoint(30, 20) : QPoint());
    // Released elsewhere, the button still drags.
    header->setAttribute(Qt::WA_UnderMouse, false);
    MouseEvent(label, QEvent::MouseButtonRelease);
    EXPECT_EQ(dialog->cursor().shape() == Qt::ClosedHandCursor, drags);
    header->setAttribute(Qt::WA_UnderMouse, true);
    MouseEvent(label, QEvent::MouseButtonRelease);
    MouseEvent(label, QEvent::MouseMove, {60, 40});
    EXPECT_EQ(dialog->pos() - start, drags ? QPoint(30, 20) : QPoint());
    EXPECT_EQ(dialog->cursor().shape(), Qt::ArrowCursor);
  }
}

TEST(DpiTest, DpiIsRoundedDownToAStep) {
  for (const auto& [dpi, step] : std::vector<std::pair<int, int>>{{1, 96},
                                                                  {100, 96},
                                                                  {119, 96},
                                                                  {120, 120},
                                                                  {143, 120},
                                                                  {144, 144},
                                                                  {150, 144},
                                                                  {167, 144},
                                                                  {168, 168},
                                                                  {191, 168},
                                                                  {192, 192},
                                                                  {300, 192}}) {
    EXPECT_EQ(Dpi::Step(dpi), step) << dpi;
  }
}

TEST(DpiTest, SizesGrowAsFarAsTheScreenAllows) {
  struct Row {
    int dpi;
    QSize screen;
    QSize scaled;
  };
  for (const auto& [dpi, screen, scaled] : std::vector<Row>{{96, {1920, 1080}, {331, 100}},
                                                            {144, {1920, 1080}, {496, 150}},
                                                            {192, {1920, 1080}, {662, 180}},  // 1200 high is too much
                                                            {192, {1000, 1000}, {413, 125}},
                                                            {144, {640, 480}, {331, 100}}}) {
    EXPECT_EQ(Dpi::Scaled({331, 100}, dpi, screen), scaled) << dpi;
  }
  EXPECT_EQ(Dpi::Scaled({INT_MAX, 0}, 192, {1920, 1080}), QSize(QWIDGETSIZE_MAX, 0));
}

TEST_F(GenericInputDialogTest, DpiIsTheMonitorsOrElseQts) {
  Install({.dpi = 150});
  EXPECT_EQ(Dpi::Detected(), QSize(150, 150));
  EXPECT_EQ(machine_->Desktop().DpiAwareness(), std::vector<std::uint32_t>{2});
  const int logical = static_cast<int>(QGuiApplication::primaryScreen()->logicalDotsPerInch());
  machine_->Faults().FailEvery("GetDpiForMonitor");
  EXPECT_EQ(Dpi::Detected(), QSize(logical, logical));
  Install({.dpi = 150, .dpiLibrary = false});
  EXPECT_EQ(Dpi::Detected(), QSize(logical, logical));
  EXPECT_EQ(Dpi::Instance() == nullptr, QApplication::topLevelWidgets().isEmpty());
  Install({.dpi = 150});
  const QWidget mainWindow;
  const Dpi* dpi = Dpi::Instance();
  EXPECT_EQ(dpi->Scaled({331, 100}), Dpi::Scaled({331, 100}, dpi->logicalDpiX(), dpi->screen()->size()));
  for (const int other : {dpi->logicalDpiY(), dpi->physicalDpiX(), dpi->physicalDpiY()})
    EXPECT_EQ(other, dpi->logicalDpiX());
  EXPECT_EQ(dpi->depth(), mainWindow.depth());
}

}  // namespace
}  // namespace orvik::testing
