// A relay circuit by the places of its devices and wires, and what it does: the same description
// is drawn and evaluated, so that a picture cannot show what the circuit would not do.
//
// Voltage spreads from the hot terminal through wires and closed contacts; a load is energized
// where current flows through it, that is, where it lies on a way from the hot terminal to the
// neutral one. Coils pick up and drop out until nothing changes.
#pragma once

#include <algorithm>
#include <cmath>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "Sheet.h"

namespace ladrix::tools {

enum class Kind { Stop, Start, ContactNO, ContactNC, OnDelayNO, OnDelayNC, OffDelayNO, Coil, Lamp };

// Two terminals: `at`, and half an inch to the right of it. Contacts bear the name of their coil.
struct RelayDevice {
    Kind kind;
    std::string name;
    Point at;
};

struct Segment {
    Point from, to;
};

enum class TimerKind { None, OnDelay, OffDelay };
constexpr std::string_view TimerName = "T1";

struct RelayCircuit {
    Point hot, neutral;
    std::vector<RelayDevice> devices;
    std::vector<Segment> wires;
    TimerKind timer = TimerKind::None;
};

// One event in the life of the circuit.
struct Action {
    enum What { Press, Release, Expire } what;
    std::string name = {};
};

class RunningCircuit {
  public:
    explicit RunningCircuit(const RelayCircuit& circuit) : circuit_(circuit) {
        makeEdges();
        settle();
    }

    void act(const Action& action) {
        if (action.what == Action::Press) pressed_.insert(action.name);
        if (action.what == Action::Release) pressed_.erase(action.name);
        if (action.what == Action::Expire && phase_ == Phase::Timing)
            phase_ = circuit_.timer == TimerKind::OnDelay ? Phase::TimedOut : Phase::AtRest;
        settle();
    }

    // A wire between two neighbouring points, or a device, as it stands now.
    struct Edge {
        std::size_t from, to;
        int device;  // -1: a wire
        bool conducts = true, carriesCurrent = false;
    };
    const std::vector<Edge>& edges() const { return edges_; }
    std::size_t nodeCount() const { return nodes_.size(); }
    Point point(std::size_t node) const { return nodes_[node]; }
    bool live(std::size_t node) const { return live_[node]; }

    bool isPressed(const std::string& name) const { return pressed_.contains(name); }
    bool isEnergized(const std::string& name) const { return energized_.contains(name); }
    bool isTiming() const { return phase_ == Phase::Timing; }
    bool hasTimedOut() const { return phase_ == Phase::TimedOut; }

    // Pressed, energized, lit, or moved out of its position of rest.
    bool isOperated(const RelayDevice& device) const {
        switch (device.kind) {
            case Kind::Stop:
            case Kind::Start:
                return isPressed(device.name);
            case Kind::OnDelayNO:
            case Kind::OnDelayNC:
                return hasTimedOut();
            case Kind::OffDelayNO:
                return isEnergized(device.name) || isTiming();
            default:
                return isEnergized(device.name);
        }
    }
    bool isClosed(const RelayDevice& device) const {
        const bool closedAtRest = device.kind == Kind::Stop || device.kind == Kind::ContactNC ||
                                  device.kind == Kind::OnDelayNC;
        return isLoad(device) || isOperated(device) != closedAtRest;
    }
    static bool isLoad(const RelayDevice& device) {
        return device.kind == Kind::Coil || device.kind == Kind::Lamp;
    }

  private:
    enum class Phase { AtRest, Timing, TimedOut };
    static constexpr std::size_t None = static_cast<std::size_t>(-1);
    static constexpr Single Length = 0.5f, Near = 0.002f;

    const RelayCircuit& circuit_;
    std::vector<Point> nodes_;
    std::vector<Edge> edges_;
    std::vector<bool> live_;
    std::set<std::string> pressed_, energized_;
    Phase phase_ = Phase::AtRest;

    std::size_t node(Point p) {
        const auto found = std::find_if(nodes_.begin(), nodes_.end(), [&](Point n) {
            return std::fabs(n.x - p.x) < Near && std::fabs(n.y - p.y) < Near;
        });
        if (found != nodes_.end()) return static_cast<std::size_t>(found - nodes_.begin());
        nodes_.push_back(p);
        return nodes_.size() - 1;
    }

    // Wires are cut where a point lies on them.
    void makeEdges() {
        node(circuit_.hot);
        node(circuit_.neutral);
        for (const Segment& wire : circuit_.wires) {
            node(wire.from);
            node(wire.to);
        }
        for (std::size_t i = 0; i < circuit_.devices.size(); ++i) {
            const Point at = circuit_.devices[i].at;
            const std::size_t from = node(at);
            edges_.push_back({from, node({at.x + Length, at.y}), static_cast<int>(i)});
        }
        for (const Segment& wire : circuit_.wires)
            cut(wire);
    }
    void cut(const Segment& wire) {
        std::vector<std::size_t> along;
        for (std::size_t i = 0; i < nodes_.size(); ++i) {
            const Point p = nodes_[i];
            const bool acrossX = p.x > std::min(wire.from.x, wire.to.x) - Near &&
                                 p.x < std::max(wire.from.x, wire.to.x) + Near;
            const bool acrossY = p.y > std::min(wire.from.y, wire.to.y) - Near &&
                                 p.y < std::max(wire.from.y, wire.to.y) + Near;
            if (acrossX && acrossY) along.push_back(i);
        }
        std::sort(along.begin(), along.end(), [&](std::size_t a, std::size_t b) {
            return nodes_[a].x + nodes_[a].y < nodes_[b].x + nodes_[b].y;
        });
        for (std::size_t i = 1; i < along.size(); ++i)
            edges_.push_back({along[i - 1], along[i], -1});
    }

    void settle() {
        for (int round = 0; round < 10; ++round) {
            evaluate();
            std::set<std::string> energized;
            for (const Edge& edge : edges_)
                if (edge.device >= 0 && isLoad(deviceOf(edge)) && edge.carriesCurrent)
                    energized.insert(deviceOf(edge).name);
            if (energized == energized_) return;
            moveTimer(energized.contains(std::string(TimerName)));
            energized_ = std::move(energized);
        }
        throw std::logic_error("A relay chatters.");
    }
    void moveTimer(bool energized) {
        if (energized == isEnergized(std::string(TimerName))) return;
        const bool starts = energized == (circuit_.timer == TimerKind::OnDelay);
        phase_ = starts ? Phase::Timing : Phase::AtRest;
    }
    const RelayDevice& deviceOf(const Edge& edge) const {
        return circuit_.devices[static_cast<std::size_t>(edge.device)];
    }

    void evaluate() {
        for (Edge& edge : edges_) {
            edge.conducts = edge.device < 0 || isClosed(deviceOf(edge));
            edge.carriesCurrent = false;
        }
        live_.assign(nodes_.size(), false);
        spreadVoltage(node(circuit_.hot));
        if (live_[node(circuit_.neutral)]) throw std::logic_error("A short circuit.");
        findCurrent();
    }
    void spreadVoltage(std::size_t from) {
        live_[from] = true;
        for (const Edge& edge : edges_) {
            if (!edge.conducts || (edge.device >= 0 && isLoad(deviceOf(edge)))) continue;
            if (edge.from == from && !live_[edge.to]) spreadVoltage(edge.to);
            if (edge.to == from && !live_[edge.from]) spreadVoltage(edge.from);
        }
    }

    // Current flows in the edges that lie on a way from hot to neutral which passes no point twice:
    // with a link between the two, those of the link's block of the graph.
    struct Search {
        std::vector<std::size_t> order, low, stack;
        std::size_t count = 0;
    };
    void findCurrent() {
        const std::size_t link = edges_.size();
        edges_.push_back({node(circuit_.neutral), node(circuit_.hot), -1});
        Search search{std::vector<std::size_t>(nodes_.size(), 0),
                      std::vector<std::size_t>(nodes_.size(), 0),
                      {}};
        visit(search, node(circuit_.hot), None, link);
        edges_.pop_back();
    }
    void visit(Search& search, std::size_t at, std::size_t by, std::size_t link) {
        search.order[at] = search.low[at] = ++search.count;
        for (std::size_t i = 0; i < edges_.size(); ++i) {
            const Edge& edge = edges_[i];
            if (i == by || !edge.conducts || (edge.from != at && edge.to != at)) continue;
            const std::size_t next = edge.from == at ? edge.to : edge.from;
            if (search.order[next] == 0) {
                const std::size_t depth = search.stack.size();
                search.stack.push_back(i);
                visit(search, next, i, link);
                search.low[at] = std::min(search.low[at], search.low[next]);
                if (search.low[next] >= search.order[at]) closeBlock(search, depth, link);
            } else if (search.order[next] < search.order[at]) {
                search.stack.push_back(i);
                search.low[at] = std::min(search.low[at], search.order[next]);
            }
        }
    }
    void closeBlock(Search& search, std::size_t depth, std::size_t link) {
        const auto first = search.stack.begin() + static_cast<std::ptrdiff_t>(depth);
        if (std::find(first, search.stack.end(), link) != search.stack.end())
            for (auto edge = first; edge != search.stack.end(); ++edge)
                edges_[*edge].carriesCurrent = true;
        search.stack.erase(first, search.stack.end());
    }
};

}  // namespace ladrix::tools
