# Completion of qvbrowse for bash, loaded by bash-completion. What there is to complete, the program
# itself tells.

# A word as the shell would pass it on.
_qvbrowse_expand() {
  local word=${1//[\\\"\']/}
  printf %s "${word/#\~\//$HOME/}"
}

_qvbrowse_run() {
  "$(_qvbrowse_expand "${words[0]}")" "${sources[@]}" "$@" 2>/dev/null
}

# The values of a key in a JSON answer, one a line, without those that hold escapes.
_qvbrowse_values() {
  _qvbrowse_run "${@:2}" --json | sed -n 's/^      "'"$1"'": "\([^"\\]*\)".*/\1/p'
}

# The paths of the children of an item, without those that hold escapes.
_qvbrowse_children() {
  _qvbrowse_run ls "$@" --paths | sed '/\\/d'
}

# Offers the lines of stdin that continue what has been typed, each with $1 at its end.
_qvbrowse_offer() {
  local typed=${cur//[\\\"\']/} line
  while IFS= read -r line; do
    [[ $line && $line == "$typed"* ]] || continue
    line+=${1-}
    # Within quotes, the shell itself quotes what it inserts.
    [[ $cur == [\"\']* ]] || line=$(printf %q "$line")
    COMPREPLY+=("$line")
  done
}

# Offers the paths of a scheme, one level at a time.
_qvbrowse_paths() {
  local typed=${cur//[\\\"\']/} parent='' items
  [[ $typed == */* ]] && parent=${typed%/*}
  items=$(_qvbrowse_children "$1" "$parent" --filter items)
  if [[ $items ]]; then
    _qvbrowse_offer <<<"$items"
  else
    compopt -o nospace
    _qvbrowse_offer / < <(_qvbrowse_children "$1" "$parent")
  fi
}

_qvbrowse() {
  local cur prev words cword
  _init_completion -n := || return

  local command=() arguments=() sources=() word i
  for ((i = 1; i < cword; i++)); do
    word=$(_qvbrowse_expand "${words[i]}")
    case $word in
      --module | --tools)
        ((++i < cword)) && sources+=("$word" "$(_qvbrowse_expand "${words[i]}")") ;;
      --module=* | --tools=*) sources+=("$word") ;;
      --color | --depth | --filter | --plugin-timeout) ((++i)) ;;
      -*) ;;
      *) if [[ $command ]]; then arguments+=("$word"); else command=("$word"); fi ;;
    esac
  done

  case $prev in
    --module) _filedir qvmodule; return ;;
    --tools)
      if [[ $cur == frei0r:* ]]; then
        cur=${cur#*:}
        _filedir -d
      else
        _filedir json
        _qvbrowse_offer <<<frei0r
      fi
      return
      ;;
    --filter) _qvbrowse_offer <<<$'all\nitems'; return ;;
    --color) _qvbrowse_offer <<<$'auto\nalways\nnever'; return ;;
    --depth | --plugin-timeout) return ;;
  esac
  if [[ $cur == -* ]]; then
    _qvbrowse_offer < <({ _qvbrowse_run --help; _qvbrowse_run "${command[@]}" --help; } |
      sed -n 's/^  \(-[hV],\)\?\(--[a-z-]*\).*/\2/p' | sort -u)
    return
  elif [[ ! $command ]]; then
    _qvbrowse_offer < <(_qvbrowse_run --help | sed -n '/^Commands:/,/^$/s/^  \([a-z-]*\) .*/\1/p')
    return
  fi

  # Such as "SCHEME [PATH]" or "SCHEME PATH...".
  local usage=($(_qvbrowse_run "${command[@]}" --help | sed -n 's/^Usage: .*\[OPTIONS\]//p')) scheme
  local next=${usage[${#arguments[@]}]}
  [[ ! $next && ${usage[*]} == *... ]] && next=PATH
  for i in "${!usage[@]}"; do
    [[ ${usage[i]} == *SCHEME* ]] && scheme=${arguments[i]}
  done
  case $next in
    NAME) _qvbrowse_offer < <(_qvbrowse_values name actions views) ;;
    *SCHEME*) _qvbrowse_offer < <(_qvbrowse_values scheme schemes) ;;
    *PATH*) _qvbrowse_paths "$scheme" ;;
  esac
}

complete -F _qvbrowse qvbrowse
