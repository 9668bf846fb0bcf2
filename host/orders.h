#pragma once

#include <iosfwd>

#include "host/command_line.h"
#include "host/host.h"

namespace korvantes::host {

/// The orders of the command line. Each throws Failure, ado::Error or ado::ConversionError with a
/// sentence for the user.

/// crear and demo: the tables, empty or with sample data.
void orderCreate(const CommandLine& line, Streams streams);
void orderDemo(const CommandLine& line, Streams streams);

/// sql: runs the statements of a file one after another, up to the first that fails.
void orderSql(const CommandLine& line, Streams streams);

/// comision: the commission of a document, in the general form of the regional settings.
void orderCommission(const CommandLine& line, Streams streams);

/// guion: plays a script. If a line fails, the order fails at the end.
void orderScript(const CommandLine& line, Streams streams);

/// No order and no display: plays the sample settlement on a temporary database, so that it can be
/// repeated and no database of the user changes.
void playSampleSettlement(const CommandLine& line, Streams streams);

}  // namespace korvantes::host
