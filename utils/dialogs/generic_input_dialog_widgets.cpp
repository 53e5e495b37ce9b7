#include "utils/dialogs/generic_input_dialog_widgets.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QSizePolicy>
#include <QSpacerItem>
#include <algorithm>
#include <array>
#include <span>

namespace {

template <typename Object, typename... Parent>
Object* Make(const QString& name, Parent*... parent) {
  auto* object = new Object(parent...);
  object->setObjectName(name);
  return object;
}

struct ButtonTemplate {
  int id;
  const char* objectName;
  const char* labelKey;
};

// From left to right.
std::span<const ButtonTemplate> TemplatesOf(std::uint32_t buttons) {
  static constexpr std::array kOkCancel{ButtonTemplate{0, "generic_input_button_ok", "OK"},
                                        ButtonTemplate{1, "generic_input_button_cancel", "CANCEL"}};
  static constexpr std::array kYesNo{ButtonTemplate{2, "generic_input_button_yes", "YES"},
                                     ButtonTemplate{3, "generic_input_button_no", "NO"}};
  switch (buttons) {
    case 0: return std::span(kOkCancel).first(1);
    case 1: return kOkCancel;
    case 2: return kYesNo;
    default: return {};
  }
}

/// A label of fixed width whose height is that of its text at this width. Layouts ask for the height at the width of
/// their cell, where the text may need fewer lines.
class TextLabel final : public QLabel {
 public:
  using QLabel::QLabel;
  int heightForWidth(int width) const override { return QLabel::heightForWidth(std::min(width, maximumWidth())); }
};

}  // namespace

QString TranslatedByHost(const char* key) {
  return QCoreApplication::translate("QT_SERVER_APP", key);
}

void GenericInputDialogWidgets::SetUp(QDialog& dialog) {
  dialog.setObjectName(QStringLiteral("generic_input_dialog_base"));
  dialogLayout = Make<QVBoxLayout>(QStringLiteral("verticalLayout_4"), &dialog);
  dialogLayout->setContentsMargins(0, 0, 0, 0);
  border = Make<QWidget>(QStringLiteral("border_widget"), &dialog);
  dialogLayout->addWidget(border);
  borderLayout = Make<QVBoxLayout>(QStringLiteral("verticalLayout_3"), border);
  borderLayout->setContentsMargins(1, 1, 1, 1);

  header = Make<QWidget>(QStringLiteral("generic_input_widget_header"), border);
  header->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Preferred);
  borderLayout->addWidget(header);
  SetUpHeader();

  instruction = Make<QWidget>(QStringLiteral("generic_input_widget_instruction"), border);
  instruction->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  borderLayout->addWidget(instruction);
  SetUpInstruction();

  footer = Make<QWidget>(QStringLiteral("generic_input_widget_footer"), border);
  footer->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
  borderLayout->addWidget(footer);
  buttonsLayout = Make<QHBoxLayout>(QStringLiteral("buttons_layout"), footer);

  QMetaObject::connectSlotsByName(&dialog);
}

void GenericInputDialogWidgets::SetUpHeader() {
  headerLayout = Make<QHBoxLayout>(QStringLiteral("horizontalLayout"), header);
  icon = Make<QLabel>(QStringLiteral("generic_input_information_icon"), header);
  icon->setFocusPolicy(Qt::NoFocus);
  title = Make<QLabel>(QStringLiteral("generic_input_header_label"), header);
  // The dialog's width is computed in the application's font; a style sheet may set a larger one.
  title->setWordWrap(true);
  closeButton = Make<QPushButton>(QStringLiteral("generic_input_header_close"), header);
  closeButton->setFlat(true);
  // Enter must not press it.
  closeButton->setAutoDefault(false);
  closeButton->setFocusPolicy(Qt::StrongFocus);
  closeButton->setCursor(Qt::PointingHandCursor);
  for (QWidget* widget :
       {static_cast<QWidget*>(icon), static_cast<QWidget*>(title), static_cast<QWidget*>(closeButton)})
    headerLayout->addWidget(widget);
}

void GenericInputDialogWidgets::SetUpInstruction() {
  instructionLayout = Make<QVBoxLayout>(QStringLiteral("verticalLayout"), instruction);
  text = Make<TextLabel>(QStringLiteral("generic_input_instruction_label"), instruction);
  text->setScaledContents(true);
  text->setAlignment(Qt::AlignJustify | Qt::AlignVCenter);
  text->setWordWrap(true);
  text->setOpenExternalLinks(true);
  text->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
  instructionLayout->addWidget(text);
  fields = Make<QWidget>(QStringLiteral("generic_input_widget_fields"), instruction);
  instructionLayout->addWidget(fields);
  fieldsLayout = Make<QVBoxLayout>(QStringLiteral("verticalLayout_2"), fields);
  fieldsLayout->setSizeConstraint(QLayout::SetFixedSize);
}

void GenericInputDialogWidgets::AddAnswerButtons(std::uint32_t buttons, QButtonGroup& group) const {
  buttonsLayout->addItem(new QSpacerItem(40, 20, QSizePolicy::Expanding, QSizePolicy::Expanding));
  bool first = true;
  for (const ButtonTemplate& each : TemplatesOf(buttons)) {
    if (!first) buttonsLayout->addItem(new QSpacerItem(10, 20, QSizePolicy::Fixed, QSizePolicy::Fixed));
    first = false;
    auto* button = new QPushButton(TranslatedByHost(each.labelKey), footer);
    button->setObjectName(QString::fromLatin1(each.objectName));
    button->setCursor(Qt::PointingHandCursor);
    button->setFocusPolicy(Qt::StrongFocus);
    // Enter must not press it.
    button->setAutoDefault(false);
    group.addButton(button, each.id);
    buttonsLayout->addWidget(button);
  }
}

QWidget* GenericInputDialogWidgets::AffirmativeButton() const {
  const auto children = footer->findChildren<QWidget*>();
  const auto found = std::ranges::find_if(children, [](const QWidget* each) {
    return each->objectName() == u"generic_input_button_ok" || each->objectName() == u"generic_input_button_yes";
  });
  return found == children.end() ? nullptr : *found;
}
