#!/usr/bin/env bash
# Starts (or reuses) a private PostgreSQL cluster on 127.0.0.1:55432 for the tests and prints
# the connection URL. The cluster lives under /tmp and trusts local connections.
set -euo pipefail
PORT=${FEROLANTA_PG_PORT:-55432}
DATE=${FEROLANTA_PG_DIR:-/tmp/ferolanta-pg}
BIN=$(ls -d /usr/lib/postgresql/*/bin 2>/dev/null | sort -V | tail -n 1)
[ -n "$BIN" ] || { echo "PostgreSQL nu este instalat" >&2; exit 1; }

ca_postgres() {
    if [ "$(id -u)" -eq 0 ]; then runuser -u postgres -- "$@"; else "$@"; fi
}

if ! "$BIN/pg_isready" -q -h 127.0.0.1 -p "$PORT"; then
    if [ ! -s "$DATE/PG_VERSION" ]; then
        rm -rf "$DATE"
        mkdir -p "$DATE"
        [ "$(id -u)" -ne 0 ] || chown postgres:postgres "$DATE"
        ca_postgres "$BIN/initdb" -D "$DATE" -U postgres -A trust -E UTF8 --locale=C.UTF-8 >/dev/null
    fi
    ca_postgres "$BIN/pg_ctl" -D "$DATE" -l "$DATE/server.log" -w -t 60 \
        -o "-c listen_addresses=127.0.0.1 -p $PORT -k /tmp -c fsync=off -c max_connections=200" start >/dev/null
fi
"$BIN/psql" -h 127.0.0.1 -p "$PORT" -U postgres -d postgres -tAc \
    "SELECT 1 FROM pg_database WHERE datname = 'ferolanta_test'" | grep -q 1 ||
    "$BIN/createdb" -h 127.0.0.1 -p "$PORT" -U postgres ferolanta_test
echo "postgresql://postgres@127.0.0.1:$PORT/ferolanta_test"
