# Keeps count of what ./test did. Sourced by bash, after common.sh.
passed=0
failed=0
logs=$root/build/logs
mkdir -p "$logs"

log_of() {  # name
    echo "$logs/${1//[^A-Za-z0-9]/_}.log"
}

say_check() {  # name status time
    local log
    log=$(log_of "$1")
    if [ "$2" -eq 0 ]; then
        passed=$((passed + 1))
        echo "ok      $1 ($3)"
    else
        failed=$((failed + 1))
        echo "FAILED  $1 ($3), the whole log is $log:"
        tail -n 40 "$log" | sed 's/^/        /'
    fi
}

# Runs a command as one check; its output is shown only when it fails.
check() {  # name command...
    local name=$1 began=$SECONDS status=0
    shift
    "$@" >"$(log_of "$name")" 2>&1 || status=$?
    say_check "$name" "$status" "$((SECONDS - began)) s"
}

# Begins a command beside the others, in a process group of its own.
declare -A begun_processes
begin() {  # name command...
    local name=$1
    shift
    set -m
    "$@" >"$(log_of "$name")" 2>&1 </dev/null &
    set +m
    begun_processes[$name]=$!
}

# Waits for it; gives its status.
end() {  # name
    local process=${begun_processes[$1]}
    wait "$process"
    set -- "$1" $?
    unset "begun_processes[$1]"
    return "$2"
}

# Ends those that were begun and not waited for.
stop_begun() {
    local process
    for process in "${begun_processes[@]}"; do
        kill -- "-$process" 2>/dev/null
    done
}

# A check that takes what time the others leave: many tests wait more than they work.
begin_check() {  # name command...
    local name=$1
    shift
    begin "$name" nice -n 19 "$@"
}

end_check() {  # name
    local status=0
    end "$1" || status=$?
    say_check "$1" "$status" 'beside the others'
}

# Counts each test in the log of a GoogleTest program. A program that crashed, hung or has no tests
# counts as one more failure.
say_tests() {  # name status time
    local log ok bad
    log=$(log_of "$1")
    sed -i 's/\r$//' "$log"
    ok=$(grep -c '^\[       OK \]' "$log")
    bad=$(grep -cE '^\[  FAILED  \] .*\([0-9]+ ms\)$' "$log")
    if [ "$bad" -ne 0 ]; then
        echo "FAILED  $1, the whole log is $log:"
        awk '/^\[ RUN /{text = ""} {text = text "        " $0 "\n"}
             /^\[  FAILED  \] .*\([0-9]+ ms\)$/{printf "%s", text}' "$log" | head -n 200
    fi
    # A program that came to its end says so, and gives 1 when a test failed.
    if ! grep -q '^\[==========\] .* ran\. (' "$log" || [ $((ok + bad)) -eq 0 ] ||
        [ "$2" -ne $((bad > 0)) ]; then
        bad=$((bad + 1))
        echo "FAILED  $1 ended early with status $2, the whole log is $log:"
        tail -n 20 "$log" | sed 's/^/        /'
    fi
    passed=$((passed + ok))
    failed=$((failed + bad))
    echo "        $1: $ok passed, $bad failed ($3)"
}

# Runs a GoogleTest program. Its output goes into a file, since a program that it leaves running
# would keep a pipe open.
check_tests() {  # name seconds command...
    local name=$1 seconds=$2 began=$SECONDS status=0
    shift 2
    timeout -k 10 "$seconds" "$@" >"$(log_of "$name")" 2>&1 </dev/null || status=$?
    say_tests "$name" "$status" "$((SECONDS - began)) s"
}

# The same beside others, which must not use its display.
begin_tests() {  # name seconds command...
    local name=$1 seconds=$2
    shift 2
    begin "$name" timeout -k 10 "$seconds" "$@"
}

end_tests() {  # name
    local status=0
    end "$1" || status=$?
    say_tests "$1" "$status" 'beside the others'
}

# Says the sum; true when nothing failed.
report() {
    echo "$passed passed, $failed failed"
    [ "$failed" -eq 0 ]
}
