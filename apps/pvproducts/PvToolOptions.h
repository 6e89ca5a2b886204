#pragma once

#include <QCommandLineOption>

//! Options that several commands share, so that their help reads the same.
namespace PvToolOptions {
const QCommandLineOption& json();
const QCommandLineOption& articleClass();
const QCommandLineOption& cover();
const QCommandLineOption& verbose();
}
