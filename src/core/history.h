#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "core/palette.h"

namespace quillhue {

/// One step of the edit history: a copy of the state that the step changed. Undo and redo are the same operation: they
/// exchange that copy with the palette's current state. A record owns the record below it on its stack. Stacks are
/// destroyed record by record, so a deep stack causes no deep recursion.
class PaletteDifference {
 public:
  PaletteDifference() = default;
  PaletteDifference(const PaletteDifference&) = delete;
  PaletteDifference& operator=(const PaletteDifference&) = delete;
  virtual ~PaletteDifference() = default;

  /// Exchanges the saved state with that of `palette`, puts the record on top of `newNext` and returns the record that
  /// was below it.
  [[nodiscard]] std::unique_ptr<PaletteDifference> swap(Palette& palette, std::unique_ptr<PaletteDifference> newNext);

 private:
  friend class EditHistory;

  virtual void exchange(Palette& palette) = 0;

  std::unique_ptr<PaletteDifference> next_;
};

/// The color of one entry. Exchanges nothing if the entry is past the end of the palette.
class PaletteDifferenceColor final : public PaletteDifference {
 public:
  PaletteDifferenceColor(const Palette& palette, std::int32_t index) : index_(index), color_(palette.entry(index)) {}

 private:
  void exchange(Palette& palette) override;

  std::int32_t index_;
  PaletteEntry color_;
};

/// The colors of all entries.
class PaletteDifferenceColors final : public PaletteDifference {
 public:
  explicit PaletteDifferenceColors(const Palette& palette);

 private:
  void exchange(Palette& palette) override;

  std::array<std::vector<std::uint8_t>, 3> channels_;
};

/// The selected flags of all entries.
class PaletteDifferenceSelection final : public PaletteDifference {
 public:
  explicit PaletteDifferenceSelection(const Palette& palette);

 private:
  void exchange(Palette& palette) override;

  std::vector<std::uint8_t> selected_;
};

/// A whole palette.
class PaletteDifferenceSize final : public PaletteDifference {
 public:
  explicit PaletteDifferenceSize(Palette palette) : palette_(std::move(palette)) {}

 private:
  void exchange(Palette& palette) override;

  Palette palette_;
};

/// The undo and redo stacks, of unlimited depth.
class EditHistory {
 public:
  EditHistory() = default;
  EditHistory(const EditHistory&) = delete;
  EditHistory& operator=(const EditHistory&) = delete;
  ~EditHistory();

  [[nodiscard]] bool canUndo() const { return undo_ != nullptr; }
  [[nodiscard]] bool canRedo() const { return redo_ != nullptr; }

  /// Makes `record` the newest step and discards the redo stack.
  void push(std::unique_ptr<PaletteDifference> record) noexcept;

  /// Exchange the newest step with `palette` and move it to the other stack. Do nothing if there is none.
  void undo(Palette& palette) { move(undo_, redo_, palette); }
  void redo(Palette& palette) { move(redo_, undo_, palette); }

 private:
  using Stack = std::unique_ptr<PaletteDifference>;
  static void move(Stack& from, Stack& to, Palette& palette);
  static void discard(Stack& stack) noexcept;

  Stack undo_;
  Stack redo_;
};

}  // namespace quillhue
