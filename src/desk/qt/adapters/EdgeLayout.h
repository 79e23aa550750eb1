#pragma once

#include <vector>

namespace quillon {

/// Which edges of a surface the things on it cling to, read from the places that they were given at one size:
/// so that they can be laid out at another. What reaches the end of its row or column stays there, what may
/// grow takes what is left, all else keeps its size and its place at the beginning.
///
/// The surface is cut into bands below each other where no thing is in the way, these into columns, and so
/// on. What lies on another thing goes with it.
class EdgeLayout {
 public:
  struct Size {
    long width = 0;
    long height = 0;
    bool operator==(const Size&) const = default;
  };
  struct Box {
    long left = 0;
    long top = 0;
    long width = 0;
    long height = 0;
    bool operator==(const Box&) const = default;
  };
  struct Item {
    Box place{};
    bool growsAcross = false;
    bool growsDown = false;
    Size least{};         ///< what a growing one can be made smaller to
    bool floats = false;  ///< lies on others wherever it stands
    long moreHeight = 0;  ///< needed beyond that of the place
  };

  EdgeLayout(std::vector<Item> items, Size whole);

  /// The smallest size at which nothing lies outside.
  Size Least() const;

  /// Whether more height is of use to any of them.
  bool GrowsDown() const { return Grows(root_, Axis::Down); }

  /// The places at a size, which is not smaller than the least one, in the order of the items.
  std::vector<Box> At(Size size) const;

 private:
  enum class Axis { Across, Down };

  /// A stretch of one axis.
  struct Span {
    long from = 0;
    long length = 0;
    long End() const { return from + length; }
  };

  /// A piece of the surface: cut along an axis, or with the things that cannot be told apart by a cut.
  struct Part {
    Box cell{};
    Axis axis = Axis::Down;
    std::vector<Part> parts{};
    std::vector<std::size_t> items{};
  };

  static Span Along(const Box& box, Axis axis);
  static Span Clinging(Span old, Span within, Span now);
  bool IsOn(const Box& upper, const Box& lower) const;
  void FindGround();
  Part Cut(const std::vector<std::size_t>& items, const Box& cell) const;
  std::vector<std::vector<std::size_t>> Split(std::vector<std::size_t> items, Axis axis) const;
  bool Grows(const Part& part, Axis axis) const;
  long More(const Part& part, Axis axis) const;
  long Least(const Part& part, Axis axis) const;
  std::vector<Span> Share(const Part& part, Span now) const;
  void Lay(const Part& part, const Box& now, std::vector<Box>& places) const;

  std::vector<Item> items_;
  Size whole_;
  std::vector<std::size_t> ground_;
  Part root_;
};

}  // namespace quillon
