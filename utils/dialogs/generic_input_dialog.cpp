#include "utils/dialogs/generic_input_dialog.h"

#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "utils/dialogs/dpi.h"
#include "utils/dialogs/windows_desktop.h"

namespace {

// Unscaled pixels.
constexpr int kLeastWidth = 331;
constexpr int kRoomBesideTitle = 80;
constexpr int kRoomBesideText = 40;
constexpr int kFieldTextWidth = 275;

int ScaledWidth(int width) {
  const Dpi* const dpi = Dpi::Instance();
  return dpi == nullptr ? width : dpi->Scaled(QSize(width, 0)).width();
}

// The answer that a button id stands for: OK, Cancel, Yes or No in the order of InputRequest::answer.
std::uint32_t AnswerOf(int id) {
  return id >= 0 && id <= 3 ? static_cast<std::uint32_t>(id) + 1 : 0;
}

QString IconName(std::uint32_t kind) {
  switch (kind) {
    case 0:
    case 5: return QStringLiteral("generic_input_question_icon");
    case 3: return QStringLiteral("generic_input_warning_icon");
    case 4: return QStringLiteral("generic_input_error_icon");
    default: return QStringLiteral("generic_input_information_icon");
  }
}

}  // namespace

GenericInputDialog::GenericInputDialog(InputRequest* request, std::string translationContext, QWidget* parent)
    : AccessibleDialogBase(parent),
      request_(request),
      ui_(std::make_unique<GenericInputDialogWidgets>()),
      translationContext_(std::move(translationContext)) {
  ui_->SetUp(*this);
  setWindowTitle(TranslatedByHost("APPLICATION_NAME"));
  request_->answer = 0;
  setWindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
  setWindowFlags(windowFlags() & ~Qt::WindowFlags(Qt::WindowContextHelpButtonHint));
  connect(ui_->closeButton, SIGNAL(clicked()), this, SLOT(OnClose()));
  connect(&answerButtons_, SIGNAL(idClicked(int)), this, SLOT(OnAnswer(int)));
  ShowText();
  SetWidth();
  ShowIconAndTitle();
  AddFields();
  ui_->AddAnswerButtons(request_->buttons, answerButtons_);
  const bool screenReader = IsNarratorRunning();
  if (screenReader) {
    ui_->title->setFocusPolicy(Qt::StrongFocus);
    ui_->text->setFocusPolicy(Qt::StrongFocus);
    ui_->closeButton->setAccessibleDescription(TranslatedByHost("CLOSE_POP_UP"));
  }
  SetInitialFocus(screenReader);
  CollectFocusList();
  adjustSize();
}

GenericInputDialog::~GenericInputDialog() {
  Dpi::Release();
}

int GenericInputDialog::exec() {
  orvik::utils::SendKey(VK_NUMPAD1, 0);
  orvik::utils::BringForward(*this);
  return QDialog::exec();
}

void GenericInputDialog::OnClose() {
  Close(0);
}

void GenericInputDialog::OnAnswer(int id) {
  Close(AnswerOf(id));
}

void GenericInputDialog::Close(std::uint32_t answer) {
  request_->answer = answer;
  close();
}

// The translation of an empty key would be the translation file's header.
QString GenericInputDialog::Translated(const std::string& key) const {
  return key.empty() ? QString() : QCoreApplication::translate(translationContext_.c_str(), key.c_str());
}

// Callers join several keys with blanks; each is translated separately.
void GenericInputDialog::ShowText() {
  QStringList words;
  for (const QString& word : QString::fromStdString(request_->text).split(u' '))
    words.append(Translated(word.toStdString()));
  ui_->text->setText(words.join(u' '));
  ui_->closeButton->setCursor(Qt::PointingHandCursor);
}

void GenericInputDialog::SetWidth() {
  const QFontMetrics metrics(QApplication::font());
  const int wanted = metrics.horizontalAdvance(QString::fromStdString(request_->title)) + kRoomBesideTitle;
  const int width = std::max(wanted, kLeastWidth);
  // A title wider than the screen would push the buttons off it.
  const int room = std::max(screen()->size().width(), kLeastWidth);
  setFixedWidth(std::min(ScaledWidth(width), room));
  ui_->text->setFixedWidth(std::min(ScaledWidth(width - kRoomBesideText), room - kRoomBesideText));
}

void GenericInputDialog::ShowIconAndTitle() {
  ui_->icon->setObjectName(IconName(request_->kind));
  ui_->title->setText(Translated(request_->title));
}

void GenericInputDialog::AddFields() {
  ui_->fields->setHidden(request_->fields.empty());
  for (const InputField* field : request_->fields) {
    if (field == nullptr || field->Type() != InputField::kLabel) continue;
    if (const auto* label = dynamic_cast<const InputFieldLabel*>(field); label != nullptr) AddLabel(*label);
  }
}

void GenericInputDialog::AddLabel(const InputFieldLabel& field) {
  auto* label = new QLabel(Translated(field.text), ui_->fields);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignJustify);
  label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  label->setOpenExternalLinks(true);
  if (!field.toolTip.empty()) label->setToolTip(Translated(field.toolTip));
  const QRect room(0, 0, kFieldTextWidth, QWIDGETSIZE_MAX);
  label->setMaximumHeight(label->fontMetrics().boundingRect(room, Qt::TextWordWrap, label->text()).height());
  ui_->fieldsLayout->addWidget(label);
}

void GenericInputDialog::SetInitialFocus(bool screenReader) {
  if (screenReader) {
    ui_->title->setFocus();
    return;
  }
  if (QWidget* button = ui_->AffirmativeButton()) button->setFocus(Qt::OtherFocusReason);
}

void GenericInputDialog::CollectFocusList() {
  const auto takesFocus = [](const QWidget* widget) { return widget->focusPolicy() == Qt::StrongFocus; };
  const auto children = findChildren<QWidget*>();
  const auto start = std::ranges::find_if(children, takesFocus);
  if (start == children.end()) return;
  QWidget* widget = *start;
  do {
    if (takesFocus(widget)) focusList_.push_back(widget);
    widget = widget->nextInFocusChain();
  } while (widget->objectName() != (*start)->objectName());
}

void GenericInputDialog::MoveFocus(int step) {
  const auto count = static_cast<int>(focusList_.size());
  const auto current = std::ranges::find_if(focusList_, [](const QWidget* each) { return each->hasFocus(); });
  const auto index = static_cast<int>(current - focusList_.begin());
  focusList_.at(static_cast<std::size_t>((index + step + count) % count))->setFocus(Qt::OtherFocusReason);
}

void GenericInputDialog::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    Close(0);
    return;
  }
  if (std::ranges::none_of(focusList_, [](const QWidget* each) { return each->hasFocus(); })) {
    SetInitialFocus(IsNarratorRunning());
    return;
  }
  if (event->key() == Qt::Key_Up) MoveFocus(-1);
  if (event->key() == Qt::Key_Down) MoveFocus(1);
}

void GenericInputDialog::mousePressEvent(QMouseEvent* event) {
  if (!ui_->header->underMouse() || ui_->closeButton->underMouse()) return;
  dragging_ = true;
  dragOffset_ = event->position().toPoint();
  setCursor(Qt::ClosedHandCursor);
}

void GenericInputDialog::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_) move(event->globalPosition().toPoint() - dragOffset_);
}

void GenericInputDialog::mouseReleaseEvent(QMouseEvent* /*event*/) {
  if (!ui_->header->underMouse()) return;
  dragging_ = false;
  unsetCursor();
}
