// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QList>
#include <QMap>
#include <QString>

/**
 * \file CANopenTypes.h
 * The names of CANopen message types and CAN error kinds, the CAN FD payload
 * sizes, the object-dictionary data types and object codes, and the library's
 * version.
 */

namespace CommonGUI {
/** The library's version, such as "0.9.0", for tools that show what they run with. */
COMMONGUI_EXPORT extern QString version;
}

/** CAN and CANopen names that data sheets and tools share. */
namespace CAN {

/** The object-dictionary data-type indices (CiA 301), written as numbers into data sheets. */
enum CANopenDataType : unsigned short {
    BOOLEAN = 0x0001,
    INTEGER8 = 0x0002,
    INTEGER16 = 0x0003,
    INTEGER32 = 0x0004,
    UNSIGNED8 = 0x0005,
    UNSIGNED16 = 0x0006,
    UNSIGNED32 = 0x0007,
    REAL32 = 0x0008,
    VISIBLE_STRING = 0x0009,
    OCTET_STRING = 0x000A,
    UNICODE_STRING = 0x000B,
    TIME_OF_DAY = 0x000C,
    TIME_DIFFERENCE = 0x000D,
    DOMAIN = 0x000F,
    INTEGER24 = 0x0010,
    REAL64 = 0x0011,
    INTEGER40 = 0x0012,
    INTEGER48 = 0x0013,
    INTEGER56 = 0x0014,
    INTEGER64 = 0x0015,
    UNSIGNED24 = 0x0016,
    UNSIGNED40 = 0x0018,
    UNSIGNED48 = 0x0019,
    UNSIGNED56 = 0x001A,
    UNSIGNED64 = 0x001B
};

}

/** CANopen object codes and message types. */
namespace CANopen {

/** The object codes of the object dictionary, written as numbers into "ObjectType". */
enum ObjectCode : unsigned char {
    NULL_OBJECT = 0x0,
    DOMAIN_OBJECT = 0x2,
    DEFTYPE = 0x5,
    DEFSTRUCT = 0x6,
    VAR = 0x7,
    ARRAY = 0x8,
    RECORD = 0x9
};

/** The kinds of CANopen message a trace shows; messageTypeNames gives their display names. */
enum MessageType {
    UNKNOWN = 0,
    SDO_REQ = 1,
    SDO_RES = 2,
    SDO_SEGSTARTSTOP = 3,
    SDO_ABORT = 4,
    SYNC = 5,
    SRDO = 6,
    PDO = 7,
    NMT = 8,
    EMCY = 9,
    NMT_EC = 10,
    NMT_EC_BOOTUP = 11,
    TIME = 12,
    LSS_REQ = 13,
    LSS_RES = 14,
    SDO_DYN_REQ = 15,
    FLYMA = 16,
    INFO = 17,
    Sleep = 18,
    GFC = 19
};

}

// Per-file copies on purpose: tools include this header wherever they name events.
/** The display names of the CAN error kinds 1 to 8, such as 1 "Stuff error". */
static const QMap<unsigned char, QString> canErrorNames = {
    { 1, QStringLiteral("Stuff error") },
    { 2, QStringLiteral("Form error") },
    { 3, QStringLiteral("Acknowledgment error") },
    { 4, QStringLiteral("Bit error") },
    { 5, QStringLiteral("Fast data bit error") },
    { 6, QStringLiteral("CRC error") },
    { 7, QStringLiteral("Data length error") },
    { 8, QStringLiteral("unspecified error") },
};

/** The payload sizes in bytes of the CAN FD length codes 9 to 15, in that order. */
static const QList<unsigned char> canFdDataLengths = { 12, 16, 20, 24, 32, 48, 64 };

// The repeated EMCY rows are historical; later insertions replace earlier ones.
/** The display names of the CANopen message types: the enumerator's name, such as "SDO_REQ". */
static const QMap<CANopen::MessageType, QString> messageTypeNames = {
    { CANopen::UNKNOWN, QStringLiteral("UNKNOWN") },
    { CANopen::SDO_REQ, QStringLiteral("SDO_REQ") },
    { CANopen::SDO_RES, QStringLiteral("SDO_RES") },
    { CANopen::SDO_SEGSTARTSTOP, QStringLiteral("SDO_SEGSTARTSTOP") },
    { CANopen::SDO_ABORT, QStringLiteral("SDO_ABORT") },
    { CANopen::SYNC, QStringLiteral("SYNC") },
    { CANopen::SRDO, QStringLiteral("SRDO") },
    { CANopen::PDO, QStringLiteral("PDO") },
    { CANopen::NMT, QStringLiteral("NMT") },
    { CANopen::EMCY, QStringLiteral("EMCY") },
    { CANopen::NMT_EC, QStringLiteral("NMT_EC") },
    { CANopen::NMT_EC_BOOTUP, QStringLiteral("NMT_EC_BOOTUP") },
    { CANopen::TIME, QStringLiteral("TIME") },
    { CANopen::EMCY, QStringLiteral("EMCY") },
    { CANopen::LSS_REQ, QStringLiteral("LSS_REQ") },
    { CANopen::LSS_RES, QStringLiteral("LSS_RES") },
    { CANopen::SDO_DYN_REQ, QStringLiteral("SDO_DYN_REQ") },
    { CANopen::FLYMA, QStringLiteral("FLYMA") },
    { CANopen::INFO, QStringLiteral("INFO") },
    { CANopen::Sleep, QStringLiteral("Sleep") },
    { CANopen::GFC, QStringLiteral("GFC") },
    { CANopen::EMCY, QStringLiteral("EMCY") },
};
