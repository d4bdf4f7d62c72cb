#pragma once

#include "model/JsonReader.h"

#include <utility>
#include <vector>

namespace quillon {

/// Fills the fields of one record from the keys of one object and keeps the first error, so that a
/// coder is the list of its keys.
class JsonFields {
public:
    explicit JsonFields(const JsonReader& object) : object_(object) { keep(object.checkObject()); }

    template <typename T>
    void required(QLatin1StringView key, T& field) {
        if (error_)
            return;
        const auto member = object_.member(key);
        if (!member)
            error_ = object_.missing(key).error();
        else
            keep(member->template read<T>(), field);
    }

    /// The field keeps what it holds when the key is absent.
    template <typename T>
    void optional(QLatin1StringView key, T& field) {
        if (const auto member = next(key))
            keep(member->template read<T>(), field);
    }

    /// The field is emptied when the key is absent.
    template <typename T>
    void optional(QLatin1StringView key, std::optional<T>& field) {
        field.reset();
        if (const auto member = next(key))
            keep(member->template read<T>(), field);
    }

    /// The list is empty when the key is absent. `decode` turns a JsonReader into an Expected<T>.
    template <typename T, typename Decode>
    void optionalList(QLatin1StringView key, std::vector<T>& field, const Decode& decode) {
        field.clear();
        if (const auto member = next(key))
            keep(readList<T>(*member, decode), field);
    }

    /// A required list; `decode` as above.
    template <typename T, typename Decode>
    void requiredList(QLatin1StringView key, std::vector<T>& field, const Decode& decode) {
        if (!error_ && !object_.member(key))
            error_ = object_.missing(key).error();
        optionalList(key, field, decode);
    }

    /// The record, or the first error.
    template <typename T>
    [[nodiscard]] Expected<T> result(T record) {
        if (error_)
            return std::unexpected(std::move(*error_));
        return record;
    }

    /// Every item of a list; fails with the first item's error.
    template <typename T, typename Decode>
    [[nodiscard]] static Expected<std::vector<T>> readList(const JsonReader& list,
                                                           const Decode& decode) {
        const auto size = list.listSize();
        if (!size)
            return std::unexpected(size.error());
        std::vector<T> items;
        items.reserve(static_cast<std::size_t>(*size));
        for (qsizetype i = 0; i < *size; ++i) {
            auto item = decode(list.item(i));
            if (!item)
                return std::unexpected(std::move(item.error()));
            items.push_back(std::move(*item));
        }
        return items;
    }

private:
    [[nodiscard]] std::optional<JsonReader> next(QLatin1StringView key) const {
        return error_ ? std::nullopt : object_.member(key);
    }

    void keep(const Expected<void>& outcome) {
        if (!outcome)
            error_ = outcome.error();
    }

    template <typename T, typename Field>
    void keep(Expected<T> outcome, Field& field) {
        if (outcome)
            field = std::move(*outcome);
        else
            error_ = std::move(outcome.error());
    }

    const JsonReader& object_;
    std::optional<Error> error_;
};

} // namespace quillon
