#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
"""Loopback stand-in for the update server and the crash-report endpoint.

Usage: updateserver.py DIR. Listens on 127.0.0.1 at a free port and prints it.

GET  /versioninfo/<name>.info   serves DIR/<name>.info (404 if absent); the name
                                "hangup" closes without an answer, "status<N>"
                                answers status N with an empty body.
POST /versioninfo/versionstest.php
                                decodes "productid=<base64 frame>" and answers with
                                a framed product map: DIR/products.json, or what
                                DIR/<product>.reply.json asks for (keys "code",
                                "status", "map", "http", "hangup", "raw" as base64).
POST anything else              a multipart upload; answers DIR/upload.status (200).
Every request is appended as a JSON line to DIR/requests.log before the answer.
"""
import base64
import json
import os
import struct
import sys
import threading
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

DIR = sys.argv[1]
LOCK = threading.Lock()
MAX_BODY = 16 * 1024 * 1024


def record(entry):
    with LOCK:
        with open(os.path.join(DIR, "requests.log"), "a") as log:
            log.write(json.dumps(entry) + "\n")
            log.flush()


def qbytes(data):
    return struct.pack(">I", len(data)) + data


def qstring(text):
    data = text.encode("utf-16-be")
    return struct.pack(">I", len(data)) + data


def take_bytes(data, pos):
    (length,) = struct.unpack_from(">I", data, pos)
    pos += 4
    if length == 0xFFFFFFFF:
        return b"", pos
    if pos + length > len(data):
        raise ValueError("truncated")
    return data[pos:pos + length], pos + length


def decode_request(frame):
    (frame_length,) = struct.unpack_from(">q", frame, 0)
    message, end = take_bytes(frame, 8)
    (code,) = struct.unpack_from(">h", message, 0)
    payload, _ = take_bytes(message, 2)
    (count,) = struct.unpack_from(">i", payload, 0)
    pos = 4
    strings = []
    for _ in range(count):
        raw, pos = take_bytes(payload, pos)
        strings.append(raw.decode("utf-16-be"))
    return {"frameLength": frame_length, "frameSize": len(frame), "code": code, "strings": strings}


def encode_reply(code, status, product_map):
    payload = struct.pack(">I", len(product_map))
    for key in sorted(product_map):
        payload += qstring(key) + qstring(str(product_map[key]))
    inner = struct.pack(">b", status) + qbytes(payload)
    message = struct.pack(">h", code) + qbytes(inner)
    return struct.pack(">q", len(qbytes(message))) + qbytes(message)


def read_json(name, default):
    path = os.path.join(DIR, name)
    if not os.path.exists(path):
        return default
    with open(path) as f:
        return json.load(f)


def multipart_parts(content_type, body):
    boundary = None
    for item in content_type.split(";"):
        item = item.strip()
        if item.startswith("boundary="):
            boundary = item[len("boundary="):].strip('"')
    if not boundary:
        return []
    parts = []
    for chunk in body.split(b"--" + boundary.encode())[1:]:
        if chunk.startswith(b"--"):
            break
        chunk = chunk[2:] if chunk.startswith(b"\r\n") else chunk
        chunk = chunk[:-2] if chunk.endswith(b"\r\n") else chunk
        head, _, data = chunk.partition(b"\r\n\r\n")
        headers = {}
        for line in head.decode("latin-1").split("\r\n"):
            name, _, value = line.partition(":")
            headers[name.strip()] = value.strip()
        parts.append({"headers": headers, "body": base64.b64encode(data).decode()})
    return parts


class Handler(BaseHTTPRequestHandler):
    def log_message(self, *args):
        pass

    def answer(self, status, body=b"", content_type="application/octet-stream"):
        self.send_response(status)
        self.send_header("Content-Type", content_type)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def hang_up(self):
        self.close_connection = True
        self.wfile.flush()
        self.connection.shutdown(2)

    def do_GET(self):
        record({"method": "GET", "path": self.path})
        name = self.path.rsplit("/", 1)[-1]
        if name.endswith(".info"):
            name = name[:-5]
        if name == "hangup":
            return self.hang_up()
        if name.startswith("status") and name[6:].isdigit():
            return self.answer(int(name[6:]))
        path = os.path.join(DIR, name + ".info")
        if not self.path.startswith("/versioninfo/") or not os.path.exists(path):
            return self.answer(404)
        with open(path, "rb") as f:
            self.answer(200, f.read(), "text/plain")

    def do_POST(self):
        length = min(int(self.headers.get("Content-Length", "0")), MAX_BODY)
        body = self.rfile.read(length)
        if self.path == "/versioninfo/versionstest.php":
            return self.version_request(body)
        record({"method": "POST", "path": self.path,
                "contentType": self.headers.get("Content-Type", ""),
                "parts": multipart_parts(self.headers.get("Content-Type", ""), body)})
        status = int(read_json("upload.status", 200))
        self.answer(status, b"{}", "application/json")

    def version_request(self, body):
        entry = {"method": "POST", "path": self.path, "body": body.decode("latin-1"),
                 "contentType": self.headers.get("Content-Type", "")}
        product = None
        try:
            prefix = b"productid="
            if not body.startswith(prefix):
                raise ValueError("no productid")
            request = decode_request(base64.b64decode(body[len(prefix):], validate=True))
            entry.update(request)
            product = request["strings"][0] if request["strings"] else None
        except Exception as error:  # malformed requests are recorded, then refused
            entry["error"] = str(error)
        record(entry)
        if product is None:
            return self.answer(400)
        reply = read_json(product + ".reply.json", {})
        if reply.get("hangup"):
            return self.hang_up()
        if "raw" in reply:
            return self.answer(reply.get("http", 200), base64.b64decode(reply["raw"]))
        if "http" in reply:
            return self.answer(reply["http"])
        product_map = reply.get("map", read_json("products.json", {}))
        self.answer(200, encode_reply(reply.get("code", 0x200A), reply.get("status", 1), product_map))


def main():
    server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
    server.daemon_threads = True
    print(server.server_address[1], flush=True)
    server.serve_forever()


if __name__ == "__main__":
    main()
