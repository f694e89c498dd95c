#!/bin/sh
# A PostgreSQL server of one's own, in a folder, on a socket: for tests and measurements.
#   postgres.sh start FOLDER   makes a cluster where there is none, starts it; prints the address of
#                              the database "kivzp"
#   postgres.sh stop|kill FOLDER   ends it properly, or as a power cut would
#   postgres.sh remove FOLDER
# The database's owner is "owner"; "reader", "editor" and "admin" log in without a password, "guarded"
# with one. As root the server runs as its package's user, since it refuses root.
set -eu
what=$1
folder=$2
bin=$(ls -d /usr/lib/postgresql/*/bin | sort -V | tail -1)

as_server() {
    if [ "$(id -u)" -eq 0 ]; then
        setpriv --reuid=postgres --regid=postgres --clear-groups env HOME="$folder" "$@"
    else
        "$@"
    fi
}

control() {
    as_server "$bin/pg_ctl" -D "$folder/data" -s -w "$@" >/dev/null
}

case $what in
start)
    mkdir -p "$folder"
    if [ ! -d "$folder/data" ]; then
        [ "$(id -u)" -ne 0 ] || chown postgres "$folder"
        as_server "$bin/initdb" -D "$folder/data" -U owner -A trust -E UTF8 --locale=C.UTF-8 \
            --no-sync >/dev/null
        printf '%s\n' "local all guarded scram-sha-256" "local all all trust" \
            | as_server tee "$folder/data/pg_hba.conf" >/dev/null
    fi
    # A server that was killed leaves this behind.
    [ -S "$folder/.s.PGSQL.5432" ] || rm -f "$folder/.s.PGSQL.5432.lock"
    control -l "$folder/log" -o "-k '$folder' -c listen_addresses='' -c max_connections=100" start
    run() { psql -h "$folder" -U owner -d "$1" -qAtc "$2"; }
    if [ -z "$(run postgres "select 1 from pg_database where datname = 'kivzp'")" ]; then
        run postgres "create database kivzp"
        for role in reader editor admin; do run postgres "create role $role login"; done
        run postgres "create role guarded login password 'Zażółć 7'"
    fi
    echo "postgresql://owner@/kivzp?host=$folder"
    ;;
stop)
    control -m fast stop
    ;;
kill)
    as_server kill -9 $(head -1 "$folder/data/postmaster.pid")
    # Its children go when they notice; only then a new one starts.
    sleep 0.3
    ;;
remove)
    control -m immediate stop 2>/dev/null || true
    rm -rf "$folder"
    ;;
esac
