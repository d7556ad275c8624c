// Reading an outline from its host into a tree, level by level.
#pragma once

#include <algorithm>
#include <cstddef>
#include <exception>
#include <string>
#include <utility>
#include <vector>

namespace qz {

/// One bookmark as its host tells it.
template <class Node>
struct OutlineEntry {
    Node node;
    std::wstring title;
    bool hasChildren = false;
};

/// Thrown while a walk reads: what it works on is gone, and it ends at once.
struct OutlineChanged : std::exception {};

/// Thrown while a walk reads: nothing more is to be read. What was read stays.
struct OutlineStopped : std::exception {};

/// What keeps the walk from going on for ever in an outline that contains itself, and from exhausting the
/// stack of a tree view, which recurses when it deletes.
struct OutlineLimits {
    std::size_t levels = 4'000;
    std::size_t bookmarks = 1'000'000;
};

inline constexpr OutlineLimits oneLevel{1, 0};
inline constexpr OutlineLimits everyLevel{};

/// Reads bookmarks and inserts them, without recursion.
///
///     Source: Node;     void Children(const Node&, std::vector<OutlineEntry<Node>>&)  appends; may throw
///             Identity; Identity IdentityOf(const Node&)     equal for one and the same bookmark
///     View:   Place;    std::vector<Place> Insert(Place under, std::vector<OutlineEntry<Node>>&)
///             void LeaveUnread(Place)   has children that are not read now
///             void Open(Place)          all its children are there
///
/// A bookmark whose children cannot be read, that stands below itself, or that is beyond the limits is left
/// unread; the walk goes on with the others. One that is stopped leaves all that it has not come to unread.
template <class Source, class View>
class OutlineWalk {
  public:
    using Node = typename Source::Node;
    using Place = typename View::Place;
    using Entries = std::vector<OutlineEntry<Node>>;

    OutlineWalk(Source& source, View& view, OutlineLimits limits)
        : source_(source), view_(view), limits_(limits) {}

    /// Inserts the children of `parent`, and what is below them as far as the limits go. When they cannot be
    /// read, that is thrown and nothing has been inserted.
    void Below(const Node& parent, Place under) {
        Entries entries;
        try {
            source_.Children(parent, entries);
        } catch (const OutlineStopped&) {
            stopped_ = true;
            return;
        }
        Enter(parent, under, entries);
        Finish();
    }

    /// The same, but when only some of the children can be read, these are inserted before that is thrown.
    void TopLevel(const Node& root, Place under) {
        Entries entries;
        std::exception_ptr failure;
        try {
            source_.Children(root, entries);
        } catch (const OutlineChanged&) {
            throw;
        } catch (const OutlineStopped&) {
            stopped_ = true;
        } catch (...) {
            failure = std::current_exception();
        }
        Enter(root, under, entries);
        Finish();
        if (failure) std::rethrow_exception(failure);
    }

    /// The walk was stopped before its end.
    bool Stopped() const noexcept { return stopped_; }

    /// How much is done, from 0 to 1: what is below a bookmark counts as much as what is below its siblings.
    double Share() const noexcept {
        double done = 0;
        double width = 1;
        for (const Level& level : path_) {
            if (level.next == 0 || width < leastShare) break;
            width /= static_cast<double>(level.parents.size());
            done += static_cast<double>(level.next - 1) * width;
        }
        return done;
    }

  private:
    using Identity = typename Source::Identity;

    static constexpr double leastShare = 1e-4;  ///< That anybody could see.

    struct Parent {
        Node node;
        Place place;
    };
    /// One level of the path from the root to where the walk is.
    struct Level {
        Identity identity;
        Place place;
        std::vector<Parent> parents;  ///< Those with children, which come next.
        std::size_t next = 0;
    };

    void Enter(const Node& node, Place under, Entries& entries) {
        Level level{source_.IdentityOf(node), under, {}};
        const std::vector<Place> places = view_.Insert(under, entries);
        inserted_ += places.size();
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (entries[i].hasChildren) level.parents.push_back({std::move(entries[i].node), places[i]});
        }
        path_.push_back(std::move(level));
    }

    void Finish() {
        while (!path_.empty()) {
            Level& level = path_.back();
            if (level.next < level.parents.size()) {
                const Parent parent = std::move(level.parents[level.next++]);
                if (!Descend(parent)) view_.LeaveUnread(parent.place);
                continue;
            }
            const Place finished = level.place;
            path_.pop_back();
            // Where the walk began is the caller's.
            if (!path_.empty()) view_.Open(finished);
        }
    }

    bool Descend(const Parent& parent) {
        const bool beyond = path_.size() >= limits_.levels || inserted_ >= limits_.bookmarks;
        if (stopped_ || beyond || OnPath(parent.node)) return false;
        try {
            Entries entries;
            source_.Children(parent.node, entries);
            Enter(parent.node, parent.place, entries);
            return true;
        } catch (const OutlineChanged&) {
            throw;
        } catch (const OutlineStopped&) {
            stopped_ = true;
            return false;
        } catch (...) {
            return false;
        }
    }

    bool OnPath(const Node& node) {
        const Identity identity = source_.IdentityOf(node);
        return std::ranges::any_of(path_, [&](const Level& level) { return level.identity == identity; });
    }

    Source& source_;
    View& view_;
    OutlineLimits limits_;
    std::vector<Level> path_;
    std::size_t inserted_ = 0;
    bool stopped_ = false;
};

}  // namespace qz
