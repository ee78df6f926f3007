// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace Tarvik::Server {

/// How a data base says what its kind says in words of its own. Statements are written once with named
/// points,
/// `{name}` or `{name:argument}`, and each kind of data base has one table of what stands there for it.
///
///   {next id}     a whole statement that takes the next id and gives it
///   {touch}       a whole statement that writes a row as it is
///   {hold:t}      keeps the found rows of table t from everybody else until the transaction ends
///   {share:t}     lets others share them, and nobody change them
///   {free:t}      as {hold:t}, passing over the rows that others hold
///   {object:x}    whether the column objectid, which may be longer than an index takes, is the text x
struct SqlPoint {
    std::string_view name;
    std::string_view text;  ///< every % stands for the argument
};

/// The statement with the points of its data base in it. Throws SqlError for a point that is not in the
/// table.
std::string WithPoints(std::string_view sql, std::span<const SqlPoint> points);

}  // namespace Tarvik::Server
