// Writes one JSON value, piece by piece, as UTF-8; a byte of a text that is not UTF-8 comes out as U+FFFD.
#pragma once

#include <concepts>
#include <ostream>
#include <string_view>

namespace tavelo {

class JsonWriter {
  public:
    explicit JsonWriter(std::ostream& out) : out_(out) {}

    // `fill` writes the members with `key`, or the elements.
    void object(auto fill) { nest('{', '}', fill); }
    void array(auto fill) { nest('[', ']', fill); }

    JsonWriter& key(std::string_view name) {
        value(name);
        out_ << ':';
        separate_ = false;
        return *this;
    }

    void value(std::string_view text);
    void value(bool truth) { plain(truth ? "true" : "false"); }
    void value(double number);
    void value(std::integral auto number) { value(static_cast<double>(number)); }

  private:
    void nest(char open, char close, auto fill) {
        begin_value();
        out_ << open;
        separate_ = false;
        fill();
        out_ << close;
        separate_ = true;
    }
    void plain(std::string_view text) {
        begin_value();
        out_ << text;
    }
    void begin_value() {
        if (separate_) out_ << ',';
        separate_ = true;
    }

    std::ostream& out_;
    bool separate_ = false;
};

} // namespace tavelo
