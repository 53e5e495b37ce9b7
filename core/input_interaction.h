#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// The host's view of a run. The module asks only whether the run was aborted; the other slots are the host's.
class TestContext {
 public:
  TestContext() = default;
  TestContext(const TestContext&) = delete;
  TestContext& operator=(const TestContext&) = delete;

  virtual ~TestContext() = default;                             // slot 0
  virtual bool ReservedSlot1() = 0;                             // slot 1
  virtual bool ReservedSlot2() = 0;                             // slot 2
  virtual bool ReservedSlot3() = 0;                             // slot 3
  virtual bool ReservedSlot4() = 0;                             // slot 4
  virtual bool IsAborted() = 0;                                 // slot 5
  virtual bool ReservedSlot6() = 0;                             // slot 6
  virtual std::map<std::string, std::string> TextValues() = 0;  // slot 7
  virtual std::vector<std::string> TextList() = 0;              // slot 8
};

/// A further input item of a question; this module's questions have none.
class InputField;

/// One question to the user and the place for its answer.
class InputRequest {
 public:
  InputRequest() = default;
  InputRequest(const InputRequest&) = delete;
  InputRequest& operator=(const InputRequest&) = delete;

  virtual ~InputRequest() = default;  // slot 0

  std::uint64_t reservedWord = 0;   ///< reserved for the host; neither set nor read by the module
  std::uint32_t answer = 0;         ///< 0 closed without a button, 1 OK, 2 Cancel, 3 Yes, 4 No
  std::string title;                ///< heading above the text
  std::string text;                 ///< the question
  std::uint32_t kind = 0;           ///< icon: 0 and 5 question, 1 and 2 information, 3 warning, 4 error
  std::uint32_t buttons = 0;        ///< 0 one OK button, 1 OK and Cancel, 2 Yes and No
  std::vector<InputField*> fields;  ///< not owned
  std::uint32_t reserved = 0;
  TestContext* context = nullptr;  ///< not owned; polled for an abort while the question is open
};

namespace orvik::core {

/// A question put to the user. The destructor is slot 1 of this class, not slot 0.
class InputInteraction {
 public:
  InputInteraction() = default;
  InputInteraction(const InputInteraction&) = delete;
  InputInteraction& operator=(const InputInteraction&) = delete;

  virtual void Interact() = 0;            // slot 0: asks, unless the interaction was created to be skipped
  virtual ~InputInteraction() = default;  // slot 1
  virtual void DoInteract() = 0;          // slot 2: shows the question and records the answer
};

}  // namespace orvik::core
