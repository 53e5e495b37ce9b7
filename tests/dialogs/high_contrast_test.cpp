#include <QAbstractEventDispatcher>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <windows.h>

#include "tests/dialogs/desktop_machine.h"
#include "tests/dialogs/gui_events.h"
#include "utils/dialogs/accessible_dialog_base.h"
#include "utils/dialogs/high_contrast_style.h"
#include "utils/dialogs/icon_recoloring.h"
#include "utils/dialogs/windows_desktop.h"

namespace orvik::testing {
namespace {

using utils::accessibility::AccessibleDialogBase;

QString Rewritten(const QString& styleSheet) {
  const utils::HighContrastColors colors{.windowText = "text",
                                         .highlight = "high",
                                         .highlightText = "hightext",
                                         .buttonFace = "face",
                                         .buttonText = "button",
                                         .grayText = "gray",
                                         .infoText = "info",
                                         .background = "back"};
  return utils::HighContrastStyleSheet(styleSheet, colors, [](const QString& value, const QString& path) {
    return path == ":/missing.svg" ? std::nullopt : std::optional<QString>(value.size() > 20 ? "long" : path + "!");
  });
}

TEST(HighContrastStyleTest, EveryKindOfSelectorHasItsRule) {
  struct Row {
    const char* rules;
    const char* rewritten;
  };
  const std::vector<Row> rows = {
      {"QWidget#a { color: red; background-color: blue; }", "QWidget#a{background-color:back;color:red;}"},
      {"QWidget#border_widget{}",
       "QWidget#border_widget{background-color:back;border:1px solid text;border-radius:4px;}"},
      {"QWidget { color: red } A QWidget#a{} A QLabel#a{} A QPushButton{} A QSpinBox#a{}",
       "A QLabel#a{}A QPushButton{}A QSpinBox#a{}A QWidget#a{}QWidget{color:red;}"},
      {"QLabel#a{color:red} QLabel#a:disabled{} QLabel#a:selected{} QLabel#a:active{} QLabel#a:hover{}",
       "QLabel#a{color:text;}QLabel#a:active{color:info;}QLabel#a:disabled{color:gray;}"
       "QLabel#a:hover{color:text;}QLabel#a:selected{color:hightext;}"},
      {"QLabel#a{} QLabel#a:focus{}",
       "QLabel#a{color:text;}"
       "QLabel#a:focus{border:2px solid;border-color:high;color:text;outline-style:none;}"
       "QLabel#a:focus:focus{border:2px solid;border-color:high;border-radius:8px;outline-style:none;}"},
      // A state without the label's own rule is a label of its own.
      {"QLabel#a:selected{}", "QLabel#a:selected{color:text;}"},
      {"QPushButton#a{border:9px} QPushButton#a:hover{color:red;background-color:red;border:9px}",
       "QPushButton#a{background-color:face;border:1px solid button;color:button;}"
       "QPushButton#a:hover{background-color:high;border:none;color:face;}"},
      {"#header_close{animation:x;border-style:dotted;left:1}, .b{}",
       "#header_close{border-radius:14px;left:1;}#header_close:hover{background-color:high;border:none;}, .b{}"},
      {"#header_close, #b { top:1 }",
       "#header_close, #b{border-radius:14px;top:1;}#header_close:hover, "
       "#b:hover{background-color:high;border:none;}"},
      {"QFrame[objectName*=\"x\"]{border-color:red;top:1}", "QFrame[objectName*=\"x\"]{top:1;}"},
      {"QFrame:focus,QTable:focus{}",
       "QFrame:focus,QTable:focus{}QFrame:focus:focus, QTable:focus:focus{border:2px solid;border-color:high;"
       "border-radius:8px;outline-style:none;}"},
      {"QSpinBox#a{}", "QSpinBox#a{background-color:face;border:1px solid face;color:hightext;}"},
      {"QComboBox#a{}", "QComboBox#a{background-color:face;border:1px solid face;color:hightext;}"},
      {"QRadioButton#a{}", "QRadioButton#a{background-color:face;border:1px solid face;color:hightext;}"},
      {"QLCDNumber#a{}", "QLCDNumber#a{background-color:face;border:1px solid face;color:hightext;}"},
      {"QStackedWidget#a{}", "QStackedWidget#a{background-color:face;border:1px solid face;color:hightext;}"},
      {"a{image:url(\":/i.svg\");icon:url(\"j\") x \"k\"} "
       "b{image:url(\":/missing.svg\");background-image:url(\"c\")}",
       "a{icon:j!;image::/i.svg!;}b{background-image:url(\"c\");image:url(\":/missing.svg\");}"},
      {"a{b:1;c:2} a{b:3}", "a{b:3;c:2;}"},
      // Malformed, or no icon's path.
      {"", ""},
      {"}}{;:}{", ""},
      {"a{b:c", "a{b:c;}"},
      {"a{b:c{d:e}f}g{:h;i;j:}", "a{b:c;}g{j:;}"},
      {"a{image:none;icon:\"}", "a{icon:\";image:none;}"},
      {"a{image:url(\"\");icon:\"j\"}", "a{icon:j!;image:url(\"\");}"},
  };
  for (const Row& row : rows) EXPECT_EQ(Rewritten(row.rules).toStdString(), row.rewritten) << row.rules;
}

TEST(IconRecoloringTest, FirstFillColorIsReplacedEverywhere) {
  for (const auto& [svg, recolored] : std::vector<std::pair<QString, std::optional<QString>>>{
           {"<a fill=\"#123\"/><b stroke=\"#123\" fill=\"#456\"/>",
            "<a fill=\"#fff\"/><b stroke=\"#fff\" fill=\"#456\"/>"},
           {"fill=\"#123\"/>", "fill=\"#fff\"/>"},
           {"<a/>", std::nullopt},
           {"fill=\"", std::nullopt},
           {"<a fill=\"\"/>", std::nullopt}}) {
    EXPECT_EQ(utils::RecoloredSvg(svg, "#fff"), recolored) << svg.toStdString();
  }
  for (const auto& [value, name] :
       std::vector<std::pair<QString, QString>>{{" url(\":/a/b=c.svg\") ", "a_bc"},
                                                {"url(\":/\")", "temp_svg"},
                                                {"url(\"..\\..\\x.svg\")", "url(\".._.._x"}}) {
    EXPECT_EQ(utils::IconBaseName(value), name);
  }
}

TEST(IconRecoloringTest, LargeOrColorlessIconsAreNotCopied) {
  const QTemporaryDir folder;
  const QByteArray svg = "<a fill=\"#123\"/>";
  struct Row {
    qsizetype size;
    QByteArray start;
    bool copied;
  };
  for (const Row& row : {Row{utils::kLargestIcon, svg, true}, Row{utils::kLargestIcon + 1, svg, false},
                         Row{utils::kLargestIcon * 2, svg, false}, Row{100, "<a/>", false}}) {
    QFile icon(folder.filePath("icon.svg"));
    ASSERT_TRUE(icon.open(QIODevice::WriteOnly));
    icon.write(row.start.leftJustified(row.size));
    icon.close();
    QObject owner;
    const auto value = utils::RecoloredIcon("icon", icon.fileName(), "#fff", folder.filePath("copies"), owner);
    EXPECT_EQ(value.has_value(), row.copied) << row.size;
    const QFileInfoList copies = QDir(folder.filePath("copies")).entryInfoList(QDir::Files);
    EXPECT_EQ(copies.value(0).size(), row.copied ? row.size : 0) << row.size;
  }
}

class HighContrastTest : public DesktopMachine {
 protected:
  static QString IconPath(const AccessibleDialogBase& dialog) {
    static const QRegularExpression kIcon("close\\{[^}]*image:\\s*url\\(\"([^\"]*)\"");
    return kIcon.match(dialog.styleSheet().remove('\n').replace(" {", "{")).captured(1);
  }

  static constexpr const char* kResource = ":/skinkit/icons/close.svg";
};

TEST_F(HighContrastTest, DialogFollowsTheSystemIntoHighContrastAndBack) {
  auto desktop = machine_->Desktop().State();
  AccessibleDialogBase dialog(nullptr);
  const QString normal = dialog.styleSheet();
  EXPECT_EQ(IconPath(dialog), kResource);
  desktop.highContrast = true;
  desktop.colors = {{8, 0x0A0B0C}, {1, 0x0D0E0F}};
  machine_->Desktop().Change(desktop);
  EXPECT_TRUE(WaitFor([&] { return dialog.styleSheet() != normal; }, 5000));
  EXPECT_TRUE(
      dialog.styleSheet().contains("QWidget#border_widget{background-color:#0d0e0f;border:1px solid #0a0b0c;"));
  EXPECT_TRUE(QFile(IconPath(dialog)).exists());
  desktop.highContrast = false;
  machine_->Desktop().Change(desktop);
  EXPECT_TRUE(WaitFor([&] { return dialog.styleSheet() == normal; }, 5000));
}

TEST_F(HighContrastTest, RecoloredIconsExistAsLongAsTheirDialog) {
  Install({.highContrast = true, .colors = {{8, 0x0A0B0C}}, .userName = "J\xC3\xBCrgen"});
  const QString temporary = folder_.path() + QString::fromUtf8("/Orvik/Diagnostics/J\xC3\xBCrgen/temp");
  QString path;
  {
    const AccessibleDialogBase dialog(nullptr);
    path = IconPath(dialog);
    EXPECT_EQ(QFileInfo(path).path(), temporary);
    EXPECT_TRUE(QFileInfo(path).fileName().startsWith("skinkit_icons_close_"));
    QFile icon(path);
    ASSERT_TRUE(icon.open(QIODevice::ReadOnly));
    EXPECT_TRUE(icon.readAll().contains("fill=\"#0a0b0c\""));
  }
  EXPECT_TRUE(QDir(temporary).isEmpty());
}

TEST_F(HighContrastTest, WithoutATemporaryFolderTheOriginalIconsAreUsed) {
  for (const char* function : {"SHGetKnownFolderPath", "GetUserNameW", ""}) {
    Install({.highContrast = true});
    if (*function != '\0') {
      machine_->Faults().FailEvery(function);
    } else {
      ASSERT_TRUE(QFile(folder_.filePath("Orvik")).open(QIODevice::WriteOnly));  // where the folder should be
    }
    const AccessibleDialogBase dialog(nullptr);
    EXPECT_EQ(IconPath(dialog), kResource) << function;
    EXPECT_TRUE(dialog.styleSheet().contains("QWidget#border_widget{background-color:#000000;"));
  }
}

TEST_F(HighContrastTest, ColorsKeepTheirSystemIndices) {
  std::map<std::uint32_t, std::uint32_t> byIndex;
  for (std::uint32_t index = 0; index <= 30; ++index) byIndex[index] = 0x102000 + index;
  Install({.colors = byIndex});
  const QList<QColor> colors = utils::SystemColors();
  ASSERT_EQ(colors.size(), 30);
  for (int k = 0; k < 30; ++k) EXPECT_EQ(colors[k].rgba(), 0xFF102000U + static_cast<QRgb>(k < 25 ? k : k + 1)) << k;
  const utils::HighContrastColors used = utils::ColorsForHighContrast(colors);
  EXPECT_EQ(QStringList({used.windowText, used.highlight, used.highlightText, used.buttonFace, used.buttonText,
                         used.grayText, used.infoText, used.background})
                .join(' '),
            "#102008 #10200d #10200e #10200f #102012 #102011 #102017 #102001");
}

TEST_F(HighContrastTest, TemporaryFolderIsTheUsersOwn) {
  Install({.userName = std::string(256, 'u')});
  EXPECT_EQ(utils::FolderPath(utils::FolderKind::Temporary),
            folder_.path().toStdString() + "\\Orvik\\Diagnostics\\" + std::string(256, 'u') + "\\temp\\");
}

TEST_F(HighContrastTest, OnlyThemeChangesAreConsumed) {
  AccessibleDialogBase dialog(nullptr);
  dialog.setStyleSheet("another");
  const auto send = [](const char* type, std::uint32_t id) {
    MSG message{};
    message.message = id;
    qintptr result = 0;
    return QAbstractEventDispatcher::instance()->filterNativeEvent(type, &message, &result);
  };
  EXPECT_FALSE(send("windows_dispatcher_MSG", 0x031A));
  EXPECT_FALSE(send("windows_generic_MSG", 0x031B));
  WaitFor([] { return false; }, 150);
  EXPECT_EQ(dialog.styleSheet(), "another");
  EXPECT_TRUE(send("windows_generic_MSG", 0x031A));
  EXPECT_EQ(dialog.styleSheet(), "another");
  EXPECT_TRUE(WaitFor([&] { return dialog.styleSheet() != "another"; }, 5000));
}

TEST_F(HighContrastTest, AccessibilityObjectOutlivesItsDialog) {
  QAccessibleInterface* object = nullptr;
  {
    AccessibleDialogBase first(nullptr);
    object = first.AccessibleObject();
    EXPECT_TRUE(object->isValid());
    EXPECT_EQ(object->role(), 10);
  }
  EXPECT_EQ(AccessibleDialogBase(nullptr).AccessibleObject(), object);
  EXPECT_FALSE(object->isValid());
}

}  // namespace
}  // namespace orvik::testing
